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
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringSet(string, "new text"));
  CHECK(strcmp(Read(second), "new text") == 0);
  CHECK_REPORTED(RyxObjectStringCreate(NULL) == NULL,
                 "RyxObjectStringCreate: failed to create the RYX string: "
                 "basic_string: construction from null is not valid");
  RyxObjectRelease(second);
  RyxObjectRelease(string);
  RyxObjectRelease(number);
}

/* A buffer gets the characters without a terminator, cut at its size; an
 * allocated copy is terminated and belongs to the caller. Both keep a NUL
 * inside the string, where Get's C string ends. */
static void ConvertsCopyTheTextIntoABufferOrAMallocedString(void) {
  static struct {
    size_t size;
    char const* expected;
  } const buffers[] = {{3, "hel#"}, {10, "hello#"}, {0, "#"}};
  RyxObject* const string = RyxObjectStringCreate("hello");
  RyxObject* const withNul = MakeStringWithNul();
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

  CHECK(strcmp(Read(withNul), "a") == 0);
  memset(buffer, '#', sizeof buffer);
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertBuffer(RyxObjectReference(withNul), buffer, 3));
  CHECK(memcmp(buffer, "a\0b#", 4) == 0);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringConvertAllocate(withNul, &copy));
  CHECK(copy != NULL && memcmp(copy, "a\0b\0", 4) == 0);
  free(copy);
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
  CHECK(strcmp(Read(string), "kept") == 0);
  RyxObjectRelease(string);
}

TestCase const StringTests[] = {
    TEST_CASE(CreateAndSetCopyTheTextWhichGetLendsToEveryHandle),
    TEST_CASE(ConvertsCopyTheTextIntoABufferOrAMallocedString),
    TEST_CASE(AFailedAllocationIsReportedAndKeepsTheText),
};
size_t const StringTestCount = sizeof StringTests / sizeof StringTests[0];
