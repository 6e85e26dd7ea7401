#include "fixtures.h"
#include "harness.h"

#include <limits.h>
#include <string.h>

static void ReferenceOfNullIsNullAndSilent(void) {
  CHECK(RyxObjectReference(NULL) == NULL);
  CHECK(RyxObjectReferenceCount(NULL) == 0);
  RyxObjectRelease(NULL);
  CHECK(RyxObjectType(NULL) == 0);
  CHECK(RyxObjectTypeName(NULL) == NULL);
  CHECK_SILENT();
}

static void ReferenceSharesTheValueAndCountsEveryOwner(void) {
  RyxObject* const first = RyxObjectInt32Create(11);
  RyxObject* second;
  int32_t value = 0;
  CHECK(RyxObjectReferenceCount(first) == 1);
  second = RyxObjectReference(first);
  CHECK(second != NULL && second != first);
  CHECK(RyxObjectReferenceCount(first) == 2);
  CHECK(RyxObjectReferenceCount(second) == 2);
  RyxObjectRelease(second);
  CHECK(RyxObjectReferenceCount(first) == 1);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectInt32Get(first, &value));
  CHECK(value == 11);
  RyxObjectRelease(first);
  CHECK_SILENT();
}

static void AFailedReferenceReturnsNullAndLeavesTheCount(void) {
  RyxObject* const value = RyxObjectInt32Create(1);
  FailNthAllocation(1);
  CHECK(RyxObjectReference(value) == NULL);
  FailNthAllocation(0);
  CHECK(RyxObjectReferenceCount(value) == 1);
  RyxObjectRelease(value);
  CHECK_SILENT();
}

static void TypeAndTypeNameDescribeTheValue(void) {
  RyxObject* const value = RyxObjectInt32Create(1);
  CHECK(RyxObjectType(value) == RyxObjectInt32Type());
  CHECK(RyxObjectType(value) != 0);
  CHECK(strcmp(RyxObjectTypeName(value), "ryx.object.Int32") == 0);
  RyxObjectRelease(value);
}

static void AnUnregisteredTypeHasNoNameAndIsReportedAsNotRegistered(void) {
  RyxObject* const value = MakeUnregisteredValue();
  int32_t out = 0;
  CHECK(RyxObjectTypeName(value) == NULL);
  CHECK(RyxObjectType(value) != 0);
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectInt32Get(value, &out));
  CHECK_LOGGED(
      "RyxObjectInt32Get: the object parameter was not a ryx.object.Int32: [not-registered]");
  RyxObjectRelease(value);
}

static void AnEmptySlotCountsAsMinusOneAndCanBeReferencedAndReleased(void) {
  RyxObject* const empty = MakeEmptyHandle();
  RyxObject* copy;
  CHECK(RyxObjectReferenceCount(empty) == -1);
  copy = RyxObjectReference(empty);
  CHECK(copy != NULL);
  CHECK(RyxObjectReferenceCount(copy) == -1);
  RyxObjectRelease(copy);
  RyxObjectRelease(empty);
  CHECK_SILENT();
}

static void StatusMessagesCoverEveryValue(void) {
  static char const* const expected[] = {
      "The RYX API operation was a success",
      "A general failure occurred, check the logging file for more information",
      "A parameter for the RYX API call was invalid, check the logging file for more information",
      "An object was the incorrect type for the RYX API",
      "An argument was out of range in the API call",
      "Failed to allocate memory insdie the API function",
  };
  int status;
  for (status = RyxObjectStatusSuccess; status <= RyxObjectStatusAllocationFailure; ++status) {
    CHECK(strcmp(RyxObjectStatusMessage(status), expected[status]) == 0);
  }
  CHECK(strcmp(RyxObjectStatusMessage(-1), "The status was negative") == 0);
  CHECK(strcmp(RyxObjectStatusMessage(INT_MIN), "The status was negative") == 0);
  CHECK(strcmp(RyxObjectStatusMessage(6),
               "The status was greater than the number of status error messages") == 0);
  CHECK(strcmp(RyxObjectStatusMessage(INT_MAX),
               "The status was greater than the number of status error messages") == 0);
  CHECK_SILENT();
}

TestCase const GenericTests[] = {
    {"ReferenceOfNullIsNullAndSilent", ReferenceOfNullIsNullAndSilent},
    {"ReferenceSharesTheValueAndCountsEveryOwner", ReferenceSharesTheValueAndCountsEveryOwner},
    {"AFailedReferenceReturnsNullAndLeavesTheCount", AFailedReferenceReturnsNullAndLeavesTheCount},
    {"TypeAndTypeNameDescribeTheValue", TypeAndTypeNameDescribeTheValue},
    {"AnUnregisteredTypeHasNoNameAndIsReportedAsNotRegistered",
     AnUnregisteredTypeHasNoNameAndIsReportedAsNotRegistered},
    {"AnEmptySlotCountsAsMinusOneAndCanBeReferencedAndReleased",
     AnEmptySlotCountsAsMinusOneAndCanBeReferencedAndReleased},
    {"StatusMessagesCoverEveryValue", StatusMessagesCoverEveryValue},
};
size_t const GenericTestCount = sizeof GenericTests / sizeof GenericTests[0];
