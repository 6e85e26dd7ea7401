// Saving, loading and rendering from C: the blocks handed out, the null record
// and the one message of a failure. The documents themselves are the C++
// side's to test.
#include "fixtures.h"
#include "harness.h"

#include <ryx/object/serialize.h>

#include <stdlib.h>
#include <string.h>

// A document is a malloc'ed block in the form asked for, NUL-terminated after
// its size; it loads back as a new owned handle, the null record as NULL.
static void DocumentsLoadBackInEveryFormAndTheNullRecordAsNull(void) {
  static RyxObjectForm const forms[] = {RyxObjectFormJson, RyxObjectFormXml, RyxObjectFormBinary};
  static char const firstBytes[] = "{<\1";
  RyxObject* const number = RyxObjectInt32Create(7);
  size_t i;
  for (i = 0; i < 3; ++i) {
    char* data = NULL;
    size_t size = 0;
    RyxObject* loaded = NULL;
    CHECK_OK(RyxObjectSave(number, forms[i], &data, &size));
    CHECK(data != NULL && data[0] == firstBytes[i] && data[size] == '\0');
    CHECK(forms[i] == RyxObjectFormBinary || strlen(data) == size);
    CHECK_OK(RyxObjectLoad(forms[i], data, size, &loaded));
    CHECK(Int32Of(loaded) == 7 && RyxObjectReferenceCount(loaded) == 1);
    RyxObjectRelease(loaded);
    free(data);
    CHECK_OK(RyxObjectSave(NULL, forms[i], &data, &size));
    CHECK_OK(RyxObjectLoad(forms[i], data, size, &loaded));
    CHECK(loaded == NULL);
    free(data);
  }
  RyxObjectRelease(number);
}

// The bad document holds NULs: only its size tells where it ends.
static void FailuresAreReportedLeavingTheOutputs(void) {
  static char unwritten[] = "unwritten";
  static char const badArray[] =
      "{\"typename\": \"ryx.object.Array\", \"required\": {\"type\": 0, \"child_types\": []},\n"
      "\"objects\": [{\"typename\": \"ryx.object.Int32\", \"value\": \"x\"}]}";
  RyxObject* const unregistered = MakeUnregisteredValue();
  RyxObject* loaded = unregistered;
  char* data = unwritten;
  size_t size = 12345;
  CHECK_FAILS(RyxObjectStatusInvalidParameter, "the form parameter was not a RYX form: 5",
              RyxObjectSave, unregistered, (RyxObjectForm)5, &data, &size);
  CHECK_FAILS(RyxObjectStatusInvalidParameter, "the form parameter was not a RYX form: -1",
              RyxObjectLoad, (RyxObjectForm)-1, "{}", 2, &loaded);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to load the RYX object: Failed to read 4 bytes from input stream! Read 2 "
              "(byte 1)",
              RyxObjectLoad, RyxObjectFormBinary, "\1\0\0", 3, &loaded);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to load the RYX object: JSON parse error: data_.f.flags & kIntFlag "
              "(line 2, column 55, at /0)",
              RyxObjectLoad, RyxObjectFormJson, badArray, strlen(badArray), &loaded);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to save the RYX object: The class has not been registered: "
              "(anonymous namespace)::Unregistered",
              RyxObjectSave, unregistered, RyxObjectFormJson, &data, &size);
  CHECK(data == unwritten && size == 12345 && loaded == unregistered);
  RyxObjectRelease(unregistered);
}

// Plain JSON loads as the JSON decides, or as a schema given as text says.
static void PlainJsonLoadsAsItsSchemaSays(void) {
  RyxObject* const pair = RyxObjectArrayCreateObjects(RyxObjectInt32Create(7),
                                                      RyxObjectStringCreate("a"), NULL);
  RyxObject* loaded = NULL;
  char* data = NULL;
  size_t size = 0;
  int64_t wide = 0;
  CHECK_OK(RyxObjectSave(pair, RyxObjectFormPlainJsonCompact, &data, &size));
  CHECK(strcmp(data, "[7,\"a\"]") == 0 && size == 7);
  CHECK_OK(RyxObjectLoad(RyxObjectFormPlainJson, data, size, &loaded));
  CHECK(RyxObjectInt64Get(RyxObjectArrayPeek(loaded, 0), &wide) == RyxObjectStatusSuccess &&
        wide == 7);
  RyxObjectRelease(loaded);
  CHECK_OK(RyxObjectLoadPlainJson(data, size, "Array<Int32,String>", &loaded));
  CHECK(Int32Of(RyxObjectArrayPeek(loaded, 0)) == 7);
  RyxObjectRelease(loaded);
  CHECK_OK(RyxObjectLoadPlainJson("null", 4, NULL, &loaded));
  CHECK(loaded == NULL);
  free(data);
  CHECK_OK(RyxObjectSave(pair, RyxObjectFormPlainJson, &data, &size));
  CHECK(strcmp(data, "[\n    7,\n    \"a\"\n]") == 0);
  free(data);
  loaded = pair;
  CHECK_FAILS(RyxObjectStatusInvalidParameter,
              "the schema parameter was not a RYX schema: Bad schema at character 12 of "
              "\"Array<Int32\": expected ',' or '>'",
              RyxObjectLoadPlainJson, "[7]", 3, "Array<Int32", &loaded);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to load the RYX object: line 1, column 2, at /0: the integer 300 is out of "
              "the range of ryx.object.Int8 (-128 to 127)",
              RyxObjectLoadPlainJson, "[300]", 5, "Array<Int8>", &loaded);
  CHECK_FAILS(RyxObjectStatusInvalidParameter, "the data parameter was NULL",
              RyxObjectLoadPlainJson, NULL, 0, NULL, &loaded);
  CHECK(loaded == pair);
  RyxObjectRelease(pair);
}

static void RenderFillsTheTemplateFromTheValueOrNull(void) {
  RyxObject* const number = RyxObjectInt32Create(7);
  char* text = NULL;
  size_t size = 0;
  CHECK_OK(RyxObjectRender("[{{typename}} {{value}}]", number, &text, &size));
  CHECK(text != NULL && strcmp(text, "[ryx.object.Int32 7]") == 0 && size == strlen(text));
  free(text);
  CHECK_OK(RyxObjectRender("[{{typename}}]", NULL, &text, &size));
  CHECK(text != NULL && strcmp(text, "[]") == 0 && size == 2);
  free(text);
  RyxObjectRelease(number);
}

TESTS(Serialize, TEST_CASE(DocumentsLoadBackInEveryFormAndTheNullRecordAsNull),
      TEST_CASE(FailuresAreReportedLeavingTheOutputs), TEST_CASE(PlainJsonLoadsAsItsSchemaSays),
      TEST_CASE(RenderFillsTheTemplateFromTheValueOrNull));
