#include "fixtures.h"
#include "harness.h"

#include <stdlib.h>
#include <string.h>

static char const* Read(RyxObject* string) {
  char const* text = NULL;
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringGet(string, &text));
  return text != NULL ? text : "(none)";
}

static void CreateAndSetCopyTheTextWhichGetLendsToEveryHandle(void) {
  char source[] = "hello";
  RyxObject* const string = RyxObjectStringCreate(source);
  RyxObject* const second = RyxObjectReference(string);
  RyxObject* const empty = RyxObjectStringCreate("");
  RyxObject* const number = RyxObjectInt32Create(1);
  char const* first;
  source[0] = 'j';
  CHECK(RyxObjectStringInstanceOf(string));
  CHECK(!RyxObjectStringInstanceOf(NULL) && !RyxObjectStringInstanceOf(number));
  CHECK(RyxObjectType(string) == RyxObjectStringType());
  CHECK(strcmp(RyxObjectTypeName(string), "ryx.object.String") == 0);
  first = Read(string);
  CHECK(strcmp(first, "hello") == 0);
  CHECK(Read(second) == first);
  CHECK(Read(empty)[0] == '\0');
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringSet(string, "new text"));
  CHECK(strcmp(Read(second), "new text") == 0);
  RyxObjectRelease(second);
  RyxObjectRelease(string);
  RyxObjectRelease(empty);
  RyxObjectRelease(number);
  CHECK_SILENT();
}

static void NullParametersAreRefusedInOrderAndKeepTheText(void) {
  RyxObject* const string = RyxObjectStringCreate("kept");
  CHECK(RyxObjectStringCreate(NULL) == NULL);
  CHECK_LOGGED(
      "RyxObjectStringCreate: failed to create the RYX string: "
      "basic_string: construction from null is not valid");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectStringSet(NULL, NULL));
  CHECK_LOGGED("RyxObjectStringSet: the object parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectStringSet(string, NULL));
  CHECK_LOGGED("RyxObjectStringSet: the value parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectStringGet(NULL, NULL));
  CHECK_LOGGED("RyxObjectStringGet: the object parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectStringGet(string, NULL));
  CHECK_LOGGED("RyxObjectStringGet: the value parameter was NULL");
  CHECK(strcmp(Read(string), "kept") == 0);
  RyxObjectRelease(string);
}

static void OtherKindsAreRefusedNamingBothTypes(void) {
  RyxObject* const number = RyxObjectInt32Create(3);
  char const* text = NULL;
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectStringGet(number, &text));
  CHECK_LOGGED(
      "RyxObjectStringGet: the object parameter was not a ryx.object.String: ryx.object.Int32");
  CHECK(text == NULL);
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectStringSet(number, "3"));
  CHECK_LOGGED(
      "RyxObjectStringSet: the object parameter was not a ryx.object.String: ryx.object.Int32");
  CHECK(Int32Of(number) == 3);
  RyxObjectRelease(number);
}

/* A buffer gets the characters without a terminator, cut at its size; an
 * allocated copy is terminated and belongs to the caller. */
static void ConvertsCopyTheTextIntoABufferOrAMallocedString(void) {
  static struct {
    size_t size;
    char const* expected;
  } const buffers[] = {{3, "hel#"}, {10, "hello#"}, {0, "#"}};
  RyxObject* const string = RyxObjectStringCreate("hello");
  char buffer[10];
  char* copy = NULL;
  size_t i;
  for (i = 0; i < sizeof buffers / sizeof buffers[0]; ++i) {
    memset(buffer, '#', sizeof buffer);
    CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringConvertBuffer(RyxObjectReference(string),
                                                                      buffer, buffers[i].size));
    CHECK(memcmp(buffer, buffers[i].expected, strlen(buffers[i].expected)) == 0);
  }
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertAllocate(RyxObjectReference(string), &copy));
  CHECK(copy != NULL && memcmp(copy, "hello", 6) == 0);
  free(copy);
  CHECK(RyxObjectReferenceCount(string) == 1);
  CHECK(strcmp(Read(string), "hello") == 0);
  RyxObjectRelease(string);
  copy = NULL;
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertAllocate(RyxObjectStringCreate(""), &copy));
  CHECK(copy != NULL && copy[0] == '\0');
  free(copy);
  CHECK_SILENT();
}

static void ConvertsConsumeTheHandleOnEveryFailureButANullObject(void) {
  RyxObject* const keep = RyxObjectBoolCreate(true);
  RyxObject* const text = RyxObjectStringCreate("x");
  char buffer[4];
  char* copy = NULL;

  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectStringConvertBuffer(NULL, buffer, 4));
  CHECK_LOGGED("RyxObjectStringConvertBuffer: the object parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectStringConvertAllocate(NULL, &copy));
  CHECK_LOGGED("RyxObjectStringConvertAllocate: the object parameter was NULL");

  CHECK_STATUS(RyxObjectStatusInvalidParameter,
               RyxObjectStringConvertBuffer(RyxObjectReference(text), NULL, 4));
  CHECK_LOGGED("RyxObjectStringConvertBuffer: the buffer parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter,
               RyxObjectStringConvertAllocate(RyxObjectReference(text), NULL));
  CHECK_LOGGED("RyxObjectStringConvertAllocate: the value parameter was NULL");
  CHECK(RyxObjectReferenceCount(text) == 1);

  CHECK_STATUS(RyxObjectStatusIncorrectType,
               RyxObjectStringConvertBuffer(RyxObjectReference(keep), buffer, 4));
  CHECK_LOGGED(
      "RyxObjectStringConvertBuffer: the object parameter was not a ryx.object.String: "
      "ryx.object.Bool");
  CHECK_STATUS(RyxObjectStatusIncorrectType,
               RyxObjectStringConvertAllocate(RyxObjectReference(keep), &copy));
  CHECK_LOGGED(
      "RyxObjectStringConvertAllocate: the object parameter was not a ryx.object.String: "
      "ryx.object.Bool");
  CHECK(copy == NULL);
  CHECK(RyxObjectReferenceCount(keep) == 1);

  RyxObjectRelease(text);
  RyxObjectRelease(keep);
}

static void EmbeddedNulIsKeptByTheCopiesButEndsTheCString(void) {
  RyxObject* const string = MakeStringWithNul();
  char buffer[4] = {'#', '#', '#', '#'};
  char* copy = NULL;
  CHECK(strcmp(Read(string), "a") == 0);
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertBuffer(RyxObjectReference(string), buffer, 3));
  CHECK(memcmp(buffer, "a\0b#", 4) == 0);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringConvertAllocate(string, &copy));
  CHECK(copy != NULL && memcmp(copy, "a\0b\0", 4) == 0);
  free(copy);
  CHECK_SILENT();
}

/* Create reports a failed allocation; Set answers it with its status alone
 * and keeps the text. The text is longer than any in-place string buffer,
 * so that copying it allocates. */
static void AFailedAllocationIsReportedAndKeepsTheText(void) {
  static char const longText[] = "a text long enough to need memory of its own";
  RyxObject* const string = RyxObjectStringCreate("kept");
  FailNthAllocation(1);
  CHECK(RyxObjectStringCreate(longText) == NULL);
  CHECK_LOGGED("RyxObjectStringCreate: failed to create the RYX string: std::bad_alloc");
  FailNthAllocation(1);
  CHECK_STATUS(RyxObjectStatusAllocationFailure, RyxObjectStringSet(string, longText));
  FailNthAllocation(0);
  CHECK_SILENT();
  CHECK(strcmp(Read(string), "kept") == 0);
  RyxObjectRelease(string);
}

TestCase const StringTests[] = {
    TEST_CASE(CreateAndSetCopyTheTextWhichGetLendsToEveryHandle),
    TEST_CASE(NullParametersAreRefusedInOrderAndKeepTheText),
    TEST_CASE(OtherKindsAreRefusedNamingBothTypes),
    TEST_CASE(ConvertsCopyTheTextIntoABufferOrAMallocedString),
    TEST_CASE(ConvertsConsumeTheHandleOnEveryFailureButANullObject),
    TEST_CASE(EmbeddedNulIsKeptByTheCopiesButEndsTheCString),
    TEST_CASE(AFailedAllocationIsReportedAndKeepsTheText),
};
size_t const StringTestCount = sizeof StringTests / sizeof StringTests[0];
