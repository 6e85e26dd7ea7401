#include "fixtures.h"
#include "harness.h"

#include <ryx/object/serialize.h>

#include <stdlib.h>
#include <string.h>

static RyxObjectForm const forms[] = {RyxObjectFormJson, RyxObjectFormXml, RyxObjectFormBinary};
#define FORM_COUNT (sizeof forms / sizeof forms[0])

/* Sentinels that show an output was not written. */
static char unwritten[] = "unwritten";
#define UNWRITTEN_SIZE ((size_t)12345)

/* [7, "abc", {"on": true}, 0.5]: every dictionary here has one entry, so its
 * documents do not depend on the order of a hash table. */
static RyxObject* MakeRecord(void) {
  return RyxObjectArrayCreateObjects(
      RyxObjectInt32Create(7), RyxObjectStringCreate("abc"),
      RyxObjectDictCreatePairs("on", RyxObjectBoolCreate(true), NULL), RyxObjectDoubleCreate(0.5),
      NULL);
}

static void SavedDocumentsLoadBackAndSaveAlikeInEveryForm(void) {
  RyxObject* const record = MakeRecord();
  size_t i;
  for (i = 0; i < FORM_COUNT; ++i) {
    char* first = NULL;
    char* second = NULL;
    size_t firstSize = 0;
    size_t secondSize = 0;
    RyxObject* loaded = NULL;
    CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectSave(record, forms[i], &first, &firstSize));
    CHECK(first != NULL && first[firstSize] == '\0');
    CHECK(forms[i] == RyxObjectFormBinary || strlen(first) == firstSize);
    CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectLoad(forms[i], first, firstSize, &loaded));
    CHECK(RyxObjectArraySize(loaded) == 4);
    CHECK(Int32Of(RyxObjectArrayPeek(loaded, 0)) == 7);
    CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectSave(loaded, forms[i], &second, &secondSize));
    CHECK(secondSize == firstSize && memcmp(first, second, firstSize) == 0);
    free(first);
    free(second);
    RyxObjectRelease(loaded);
  }
  RyxObjectRelease(record);
}

/* The null record, and a text document naming a type nobody registered,
 * load as NULL without a failure. */
static void TheNullRecordAndUnknownTypesLoadAsNull(void) {
  static char const* const unknown[] = {
      "{\"typename\": \"ryx.tests.Unknown\", \"value\": 1}",
      "<cereal><typename>ryx.tests.Unknown</typename><value>1</value></cereal>",
  };
  RyxObject* const record = MakeRecord();
  size_t i;
  for (i = 0; i < FORM_COUNT; ++i) {
    char* data = NULL;
    size_t size = 0;
    RyxObject* loaded = record;
    CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectSave(NULL, forms[i], &data, &size));
    CHECK(forms[i] != RyxObjectFormBinary || (size == 5 && memcmp(data, "\1\0\0\0\0", 5) == 0));
    CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectLoad(forms[i], data, size, &loaded));
    CHECK(loaded == NULL);
    free(data);
    if (forms[i] != RyxObjectFormBinary) {
      loaded = record;
      CHECK_STATUS(RyxObjectStatusSuccess,
                   RyxObjectLoad(forms[i], unknown[i], strlen(unknown[i]), &loaded));
      CHECK(loaded == NULL);
    }
  }
  RyxObjectRelease(record);
}

/* An unknown form, a bad document or a value that cannot be saved: the
 * reason is logged and the outputs are left alone. */
static void FailuresAreReportedLeavingTheOutputs(void) {
  static struct {
    RyxObjectForm form;
    char const* document;
    size_t size;
    char const* message;
  } const bad[] = {
      {RyxObjectFormJson, "{\"typename\": 7}", 15,
       "RyxObjectLoad: failed to load the RYX object: JSON parse error: IsString()"},
      {RyxObjectFormXml, "<cereal><typename>", 18,
       "RyxObjectLoad: failed to load the RYX object: XML Parsing failed - likely due to invalid "
       "characters or invalid naming"},
      {RyxObjectFormBinary, "\1\0\0", 3,
       "RyxObjectLoad: failed to load the RYX object: Failed to read 4 bytes from input stream! "
       "Read 2"},
      {RyxObjectFormBinary, "\1\1\2\3\4", 5,
       "RyxObjectLoad: failed to load the RYX object: Cannot load the unregistered type id "
       "67305985 from the binary form: the bytes that follow cannot be read"},
  };
  RyxObject* const unregistered = MakeUnregisteredValue();
  RyxObject* loaded = unregistered;
  char* data = unwritten;
  size_t size = UNWRITTEN_SIZE;
  size_t i;
  CHECK_STATUS(RyxObjectStatusInvalidParameter,
               RyxObjectSave(unregistered, (RyxObjectForm)3, &data, &size));
  CHECK_LOGGED("RyxObjectSave: the form parameter was not a RYX form: 3");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectLoad((RyxObjectForm)-1, "{}", 2, &loaded));
  CHECK_LOGGED("RyxObjectLoad: the form parameter was not a RYX form: -1");
  for (i = 0; i < sizeof bad / sizeof bad[0]; ++i) {
    CHECK_STATUS(RyxObjectStatusFailure,
                 RyxObjectLoad(bad[i].form, bad[i].document, bad[i].size, &loaded));
    CHECK_LOGGED(bad[i].message);
  }
  CHECK_STATUS(RyxObjectStatusFailure,
               RyxObjectSave(unregistered, RyxObjectFormJson, &data, &size));
  CHECK_LOGGED(
      "RyxObjectSave: failed to save the RYX object: The class has not been registered: "
      "(anonymous namespace)::Unregistered");
  CHECK(data == unwritten && size == UNWRITTEN_SIZE && loaded == unregistered);
  RyxObjectRelease(unregistered);
}

static void RenderFillsTheTemplateFromTheValue(void) {
  static char const mustache[] =
      "{{#objects}}{{#is.typename.ryx.object.Int32}}int {{value}};{{/is.typename.ryx.object.Int32}}"
      "{{#properties}}{{key}}={{#value}}{{value}}{{/value}};{{/properties}}{{/objects}}";
  RyxObject* const record = MakeRecord();
  char* text = NULL;
  size_t size = 0;
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectRender(mustache, record, &text, &size));
  CHECK(text != NULL && strcmp(text, "int 7;on=true;") == 0 && size == strlen(text));
  free(text);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectRender("[{{typename}}]", NULL, &text, &size));
  CHECK(text != NULL && strcmp(text, "[]") == 0 && size == 2);
  free(text);
  RyxObjectRelease(record);
}

TestCase const SerializeTests[] = {
    TEST_CASE(SavedDocumentsLoadBackAndSaveAlikeInEveryForm),
    TEST_CASE(TheNullRecordAndUnknownTypesLoadAsNull),
    TEST_CASE(FailuresAreReportedLeavingTheOutputs),
    TEST_CASE(RenderFillsTheTemplateFromTheValue),
};
size_t const SerializeTestCount = sizeof SerializeTests / sizeof SerializeTests[0];
