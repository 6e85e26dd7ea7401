#include "fixtures.h"
#include "harness.h"

#include <stdlib.h>
#include <string.h>

static char const* Read(RyxObject* string) {
  char const* text = NULL;
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringGet(string, &text));
  return text != NULL ? text : "(none)";
}

static void CreateCopiesTheTextAndGetLendsTheValuesOwnCharacters(void) {
  char source[] = "hello";
  RyxObject* const string = RyxObjectStringCreate(source);
  char const* first;
  source[0] = 'j';
  CHECK(RyxObjectStringInstanceOf(string));
  CHECK(RyxObjectType(string) == RyxObjectStringType());
  CHECK(strcmp(RyxObjectTypeName(string), "ryx.object.String") == 0);
  first = Read(string);
  CHECK(strcmp(first, "hello") == 0);
  CHECK(Read(string) == first);
  RyxObjectRelease(string);
  CHECK_SILENT();
}

static void AnEmptyStringReadsAsASingleTerminator(void) {
  RyxObject* const string = RyxObjectStringCreate("");
  CHECK(Read(string)[0] == '\0');
  RyxObjectRelease(string);
}

static void CreateFromNullFailsWithTheConstructorsText(void) {
  CHECK(RyxObjectStringCreate(NULL) == NULL);
  CHECK_LOGGED(
      "RyxObjectStringCreate: failed to create the RYX string: "
      "basic_string: construction from null is not valid");
}

static void InstanceOfIsFalseForNullAndNumbers(void) {
  RyxObject* const number = RyxObjectInt32Create(1);
  CHECK(!RyxObjectStringInstanceOf(NULL));
  CHECK(!RyxObjectStringInstanceOf(number));
  RyxObjectRelease(number);
  CHECK_SILENT();
}

static void SetReplacesTheTextForEveryHandle(void) {
  RyxObject* const string = RyxObjectStringCreate("old");
  RyxObject* const second = RyxObjectReference(string);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringSet(string, "new text"));
  CHECK(strcmp(Read(second), "new text") == 0);
  RyxObjectRelease(second);
  RyxObjectRelease(string);
  CHECK_SILENT();
}

static void SetAndGetRefuseNullParametersInOrder(void) {
  RyxObject* const string = RyxObjectStringCreate("kept");
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
  int32_t value = 0;
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectStringGet(number, &text));
  CHECK_LOGGED(
      "RyxObjectStringGet: the object parameter was not a ryx.object.String: ryx.object.Int32");
  CHECK(text == NULL);
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectStringSet(number, "3"));
  CHECK_LOGGED(
      "RyxObjectStringSet: the object parameter was not a ryx.object.String: ryx.object.Int32");
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectInt32Get(number, &value));
  CHECK(value == 3);
  RyxObjectRelease(number);
}

static void ConvertBufferCopiesWithoutTerminatorAndCutsSilently(void) {
  RyxObject* const string = RyxObjectStringCreate("hello");
  char buffer[10];

  memset(buffer, '#', sizeof buffer);
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertBuffer(RyxObjectReference(string), buffer, 3));
  CHECK(memcmp(buffer, "hel#", 4) == 0);

  memset(buffer, '#', sizeof buffer);
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertBuffer(RyxObjectReference(string), buffer, sizeof buffer));
  CHECK(memcmp(buffer, "hello#", 6) == 0);

  memset(buffer, '#', sizeof buffer);
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertBuffer(RyxObjectReference(string), buffer, 0));
  CHECK(buffer[0] == '#');

  CHECK(RyxObjectReferenceCount(string) == 1);
  CHECK(strcmp(Read(string), "hello") == 0);
  RyxObjectRelease(string);
  CHECK_SILENT();
}

static void ConvertAllocateGivesAMallocedCopyWithTerminator(void) {
  RyxObject* const string = RyxObjectStringCreate("hello");
  RyxObject* const empty = RyxObjectStringCreate("");
  char* copy = NULL;
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectStringConvertAllocate(RyxObjectReference(string), &copy));
  CHECK(copy != NULL && memcmp(copy, "hello", 6) == 0);
  free(copy);
  CHECK(RyxObjectReferenceCount(string) == 1);
  CHECK(strcmp(Read(string), "hello") == 0);
  RyxObjectRelease(string);

  copy = NULL;
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectStringConvertAllocate(empty, &copy));
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

/* Longer than any in-place string buffer, so that copying it allocates. */
static char const LongText[] = "a text long enough to need memory of its own";

static void CreateReportsAFailedAllocation(void) {
  FailNthAllocation(1);
  CHECK(RyxObjectStringCreate(LongText) == NULL);
  CHECK_LOGGED("RyxObjectStringCreate: failed to create the RYX string: std::bad_alloc");
}

static void SetAnswersAFailedAllocationSilentlyAndKeepsTheText(void) {
  RyxObject* const string = RyxObjectStringCreate("kept");
  FailNthAllocation(1);
  CHECK_STATUS(RyxObjectStatusAllocationFailure, RyxObjectStringSet(string, LongText));
  FailNthAllocation(0);
  CHECK_SILENT();
  CHECK(strcmp(Read(string), "kept") == 0);
  RyxObjectRelease(string);
}

TestCase const StringTests[] = {
    {"CreateCopiesTheTextAndGetLendsTheValuesOwnCharacters",
     CreateCopiesTheTextAndGetLendsTheValuesOwnCharacters},
    {"AnEmptyStringReadsAsASingleTerminator", AnEmptyStringReadsAsASingleTerminator},
    {"CreateFromNullFailsWithTheConstructorsText", CreateFromNullFailsWithTheConstructorsText},
    {"InstanceOfIsFalseForNullAndNumbers", InstanceOfIsFalseForNullAndNumbers},
    {"SetReplacesTheTextForEveryHandle", SetReplacesTheTextForEveryHandle},
    {"SetAndGetRefuseNullParametersInOrder", SetAndGetRefuseNullParametersInOrder},
    {"OtherKindsAreRefusedNamingBothTypes", OtherKindsAreRefusedNamingBothTypes},
    {"ConvertBufferCopiesWithoutTerminatorAndCutsSilently",
     ConvertBufferCopiesWithoutTerminatorAndCutsSilently},
    {"ConvertAllocateGivesAMallocedCopyWithTerminator",
     ConvertAllocateGivesAMallocedCopyWithTerminator},
    {"ConvertsConsumeTheHandleOnEveryFailureButANullObject",
     ConvertsConsumeTheHandleOnEveryFailureButANullObject},
    {"EmbeddedNulIsKeptByTheCopiesButEndsTheCString",
     EmbeddedNulIsKeptByTheCopiesButEndsTheCString},
    {"CreateReportsAFailedAllocation", CreateReportsAFailedAllocation},
    {"SetAnswersAFailedAllocationSilentlyAndKeepsTheText",
     SetAnswersAFailedAllocationSilentlyAndKeepsTheText},
};
size_t const StringTestCount = sizeof StringTests / sizeof StringTests[0];
