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
  RyxObject* const unregistered = MakeUnregisteredValue();
  RyxObject* loaded = unregistered;
  char* data = unwritten;
  size_t size = 12345;
  CHECK_FAILS(RyxObjectStatusInvalidParameter, "the form parameter was not a RYX form: 3",
              RyxObjectSave, unregistered, (RyxObjectForm)3, &data, &size);
  CHECK_FAILS(RyxObjectStatusInvalidParameter, "the form parameter was not a RYX form: -1",
              RyxObjectLoad, (RyxObjectForm)-1, "{}", 2, &loaded);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to load the RYX object: Failed to read 4 bytes from input stream! Read 2",
              RyxObjectLoad, RyxObjectFormBinary, "\1\0\0", 3, &loaded);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to save the RYX object: The class has not been registered: "
              "(anonymous namespace)::Unregistered",
              RyxObjectSave, unregistered, RyxObjectFormJson, &data, &size);
  CHECK(data == unwritten && size == 12345 && loaded == unregistered);
  RyxObjectRelease(unregistered);
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
      TEST_CASE(FailuresAreReportedLeavingTheOutputs),
      TEST_CASE(RenderFillsTheTemplateFromTheValueOrNull));
