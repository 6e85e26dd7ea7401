#include "fixtures.h"
#include "harness.h"

#include <limits.h>
#include <string.h>

static void EveryGenericFunctionAcceptsNullSilently(void) {
  CHECK(RyxObjectReference(NULL) == NULL);
  CHECK(RyxObjectReferenceCount(NULL) == 0);
  RyxObjectRelease(NULL);
  CHECK(RyxObjectType(NULL) == 0);
  CHECK(RyxObjectTypeName(NULL) == NULL);
  CHECK_SILENT();
}

static void ReferenceSharesTheValueAndCountsEveryOwnerUnlessAllocationFails(void) {
  RyxObject* const first = RyxObjectInt32Create(11);
  RyxObject* const second = RyxObjectReference(first);
  CHECK(second != NULL && second != first);
  CHECK(RyxObjectReferenceCount(first) == 2 && RyxObjectReferenceCount(second) == 2);
  RyxObjectRelease(second);
  CHECK(RyxObjectReferenceCount(first) == 1);
  CHECK(Int32Of(first) == 11);
  FailNthAllocation(1);
  CHECK(RyxObjectReference(first) == NULL);
  FailNthAllocation(0);
  CHECK(RyxObjectReferenceCount(first) == 1);
  RyxObjectRelease(first);
  CHECK_SILENT();
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
  RyxObject* const copy = RyxObjectReference(empty);
  CHECK(RyxObjectReferenceCount(empty) == -1);
  CHECK(copy != NULL && RyxObjectReferenceCount(copy) == -1);
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
  char const* const negative = "The status was negative";
  char const* const beyond = "The status was greater than the number of status error messages";
  int status;
  for (status = RyxObjectStatusSuccess; status <= RyxObjectStatusAllocationFailure; ++status) {
    CHECK(strcmp(RyxObjectStatusMessage(status), expected[status]) == 0);
  }
  CHECK(strcmp(RyxObjectStatusMessage(-1), negative) == 0);
  CHECK(strcmp(RyxObjectStatusMessage(INT_MIN), negative) == 0);
  CHECK(strcmp(RyxObjectStatusMessage(6), beyond) == 0);
  CHECK(strcmp(RyxObjectStatusMessage(INT_MAX), beyond) == 0);
  CHECK_SILENT();
}

TestCase const GenericTests[] = {
    TEST_CASE(EveryGenericFunctionAcceptsNullSilently),
    TEST_CASE(ReferenceSharesTheValueAndCountsEveryOwnerUnlessAllocationFails),
    TEST_CASE(AnUnregisteredTypeHasNoNameAndIsReportedAsNotRegistered),
    TEST_CASE(AnEmptySlotCountsAsMinusOneAndCanBeReferencedAndReleased),
    TEST_CASE(StatusMessagesCoverEveryValue),
};
size_t const GenericTestCount = sizeof GenericTests / sizeof GenericTests[0];
