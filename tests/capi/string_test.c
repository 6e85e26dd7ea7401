#include "fixtures.h"
#include "harness.h"

#include <stdlib.h>
#include <string.h>

static char const* Read(RyxObject* string) {
  char const* text = NULL;
  CHECK_OK(RyxObjectStringGet(string, &text));
  return text != NULL ? text : "(none)";
}

// Create reports a failure; Set answers a failed allocation with its status
// alone and keeps the text. The long text needs memory of its own to copy.
static void CreateAndSetCopyTheTextWhichGetLendsToEveryHandle(void) {
  static char const longText[] = "a text long enough to need memory of its own";
  char source[] = "hello";
  RyxObject* const string = RyxObjectStringCreate(source);
  RyxObject* const second = RyxObjectReference(string);
  RyxObject* const number = RyxObjectInt32Create(1);
  source[0] = 'j';
  CHECK(RyxObjectStringInstanceOf(string) && !RyxObjectStringInstanceOf(NULL));
  CHECK(!RyxObjectStringInstanceOf(number) && RyxObjectType(string) == RyxObjectStringType());
  CHECK(strcmp(RyxObjectTypeName(string), "ryx.object.String") == 0);
  CHECK(strcmp(Read(string), "hello") == 0 && Read(second) == Read(string));
  CHECK_OK(RyxObjectStringSet(string, "new text"));
  CHECK(strcmp(Read(second), "new text") == 0);
  CHECK_FAILS(NULL,
              "failed to create the RYX string: basic_string: construction from null is not valid",
              RyxObjectStringCreate, NULL);
  FailNthAllocation(1);
  CHECK_FAILS(NULL, "failed to create the RYX string: std::bad_alloc", RyxObjectStringCreate,
              longText);
  FailNthAllocation(1);
  CHECK(RyxObjectStringSet(string, longText) == RyxObjectStatusAllocationFailure);
  FailNthAllocation(0);
  CHECK(strcmp(Read(second), "new text") == 0);
  RyxObjectRelease(second);
  RyxObjectRelease(string);
  RyxObjectRelease(number);
}

// A buffer gets the characters without a terminator, cut at its size; an
// allocated copy is terminated and belongs to the caller. Both keep a NUL
// inside the string, where Get's C string ends.
static void ConvertsCopyTheTextIntoABufferOrAMallocedString(void) {
  RyxObject* const string = RyxObjectStringCreate("hello");
  RyxObject* const withNul = MakeStringWithNul();
  struct {
    RyxObject* string;
    size_t size;
    char const* expected;
    size_t length;
  } const buffers[] = {{string, 3, "hel#", 4},
                       {string, 10, "hello#", 6},
                       {string, 0, "#", 1},
                       {withNul, 3, "a\0b#", 4}};
  char buffer[10];
  char* copy = NULL;
  size_t i;
  for (i = 0; i < sizeof buffers / sizeof buffers[0]; ++i) {
    memset(buffer, '#', sizeof buffer);
    CHECK_OK(RyxObjectStringConvertBuffer(RyxObjectReference(buffers[i].string), buffer,
                                          buffers[i].size));
    CHECK(memcmp(buffer, buffers[i].expected, buffers[i].length) == 0);
  }
  CHECK(RyxObjectReferenceCount(string) == 1 && strcmp(Read(string), "hello") == 0);
  CHECK(strcmp(Read(withNul), "a") == 0);
  CHECK_OK(RyxObjectStringConvertAllocate(withNul, &copy));
  CHECK(copy != NULL && memcmp(copy, "a\0b\0", 4) == 0);
  free(copy);
  RyxObjectRelease(string);
}

TESTS(String, TEST_CASE(CreateAndSetCopyTheTextWhichGetLendsToEveryHandle),
      TEST_CASE(ConvertsCopyTheTextIntoABufferOrAMallocedString));
