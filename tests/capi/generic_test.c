// The functions of any handle, the status messages, and the NULL-parameter and
// wrong-kind reports that every function shares.
#include "fixtures.h"
#include "harness.h"

#include <ryx/object/serialize.h>

#include <string.h>

// NULL is accepted silently everywhere; an empty slot counts as -1; a failed
// allocation of the new handle answers NULL.
static void ReferenceSharesTheValueAndCountsEveryOwner(void) {
  RyxObject* const first = RyxObjectInt32Create(11);
  RyxObject* const second = RyxObjectReference(first);
  RyxObject* const empty = MakeEmptyHandle();
  RyxObject* const copy = RyxObjectReference(empty);
  CHECK(RyxObjectReference(NULL) == NULL && RyxObjectReferenceCount(NULL) == 0);
  CHECK(RyxObjectType(NULL) == 0 && RyxObjectTypeName(NULL) == NULL);
  RyxObjectRelease(NULL);
  CHECK(second != NULL && second != first && RyxObjectReferenceCount(first) == 2);
  RyxObjectRelease(second);
  FailNthAllocation(1);
  CHECK(RyxObjectReference(first) == NULL);
  FailNthAllocation(0);
  CHECK(RyxObjectReferenceCount(first) == 1 && Int32Of(first) == 11);
  CHECK(copy != NULL && RyxObjectReferenceCount(empty) == -1 &&
        RyxObjectReferenceCount(copy) == -1);
  RyxObjectRelease(first);
  RyxObjectRelease(copy);
  RyxObjectRelease(empty);
}

static void StatusMessagesCoverEveryValue(void) {
  static char const* const expected[6] = {
      [RyxObjectStatusSuccess] = "The RYX API operation was a success",
      [RyxObjectStatusFailure] =
          "A general failure occurred, check the logging file for more information",
      [RyxObjectStatusInvalidParameter] =
          "A parameter for the RYX API call was invalid, check the logging file for more "
          "information",
      [RyxObjectStatusIncorrectType] = "An object was the incorrect type for the RYX API",
      [RyxObjectStatusOutOfRange] = "An argument was out of range in the API call",
      [RyxObjectStatusAllocationFailure] = "Failed to allocate memory insdie the API function",
  };
  int status;
  for (status = 0; status < 6; ++status) {
    CHECK(expected[status] != NULL &&
          strcmp(RyxObjectStatusMessage(status), expected[status]) == 0);
  }
  CHECK(strcmp(RyxObjectStatusMessage(-1), "The status was negative") == 0);
  CHECK(strcmp(RyxObjectStatusMessage(6),
               "The status was greater than the number of status error messages") == 0);
}

// The numeric kinds are covered by primitive_test.c. Functions that consume
// their handle do so before they test an output pointer.
static void NullParametersAreNamedAndAnObjectNotConsumed(void) {
  RyxObject* const text = RyxObjectStringCreate("x");
  RyxObject* const object = RyxObjectInt32Create(6);
  RyxObject* loaded = object;
  char buffer[4];
  char* data = NULL;
  size_t size = 0;
  uint16_t value = 0;
  CHECK_NULL("object", RyxObjectStringSet, NULL, NULL);
  CHECK_NULL("value", RyxObjectStringSet, text, NULL);
  CHECK_NULL("object", RyxObjectStringGet, NULL, NULL);
  CHECK_NULL("value", RyxObjectStringGet, text, NULL);
  CHECK_NULL("object", RyxObjectStringConvertBuffer, NULL, buffer, 4);
  CHECK_NULL("buffer", RyxObjectStringConvertBuffer, RyxObjectReference(text), NULL, 4);
  CHECK_NULL("object", RyxObjectStringConvertAllocate, NULL, &data);
  CHECK_NULL("value", RyxObjectStringConvertAllocate, RyxObjectReference(text), NULL);
  CHECK_NULL("object", RyxObjectEnumSetValue, NULL, 1);
  CHECK_NULL("value", RyxObjectEnumGetValue, NULL, NULL);  // the value is tested first
  CHECK_NULL("object", RyxObjectEnumGetValue, NULL, &value);
  CHECK_NULL("object", RyxObjectEnumConvertValue, NULL, &value);
  CHECK_NULL("value", RyxObjectEnumConvertValue, RyxObjectEnumCreate(5), NULL);
  CHECK_NULL("object", RyxObjectArraySetObject, NULL, 0, object);
  CHECK_REPORTED(RyxObjectArraySize(NULL) == 0,
                 "RyxObjectArraySize: the object parameter was NULL");
  CHECK_REPORTED(RyxObjectArrayCapacity(NULL) == 0,
                 "RyxObjectArrayCapacity: the object parameter was NULL");
  CHECK_REPORTED(RyxObjectDictSize(NULL) == 0, "RyxObjectDictSize: the object parameter was NULL");
  CHECK_NULL("data", RyxObjectSave, text, RyxObjectFormJson, NULL, &size);
  CHECK_NULL("size", RyxObjectSave, text, RyxObjectFormJson, &data, NULL);
  CHECK_NULL("data", RyxObjectLoad, RyxObjectFormJson, NULL, 0, &loaded);
  CHECK_NULL("object", RyxObjectLoad, RyxObjectFormJson, "{}", 2, NULL);
  CHECK_NULL("mustache", RyxObjectRender, NULL, text, &data, &size);
  CHECK_NULL("text", RyxObjectRender, "", text, NULL, &size);
  CHECK_NULL("size", RyxObjectRender, "", text, &data, NULL);
  CHECK(data == NULL && size == 0 && loaded == object);
  CHECK(RyxObjectReferenceCount(text) == 1 && RyxObjectReferenceCount(object) == 1);
  RyxObjectRelease(text);
  RyxObjectRelease(object);
}

// Another kind is refused naming both types; a consuming function still
// consumes its handle, any other leaves its handles and values as they were.
static void AnotherKindIsRefusedNamingBothTypes(void) {
  RyxObject* const number = RyxObjectInt32Create(3);
  RyxObject* const array = RyxObjectArrayCreateObjects(NULL);
  RyxObject* const unregistered = MakeUnregisteredValue();
  char const* text = NULL;
  char buffer[4];
  char* copy = NULL;
  uint16_t value = 0;
  int32_t read = 0;
  CHECK_NOT_A("ryx.object.String", "ryx.object.Int32", RyxObjectStringGet, number, &text);
  CHECK_NOT_A("ryx.object.String", "ryx.object.Int32", RyxObjectStringSet, number, "3");
  CHECK_NOT_A("ryx.object.String", "ryx.object.Int32", RyxObjectStringConvertBuffer,
              RyxObjectReference(number), buffer, 4);
  CHECK_NOT_A("ryx.object.String", "ryx.object.Int32", RyxObjectStringConvertAllocate,
              RyxObjectReference(number), &copy);
  CHECK_NOT_A("ryx.object.Enum", "ryx.object.Int32", RyxObjectEnumSetValue, number, 1);
  CHECK_NOT_A("ryx.object.Enum", "ryx.object.Int32", RyxObjectEnumGetValue, number, &value);
  CHECK_NOT_A("ryx.object.Enum", "ryx.object.Int32", RyxObjectEnumConvertValue,
              RyxObjectReference(number), &value);
  CHECK_NOT_A("ryx.object.Array", "ryx.object.Int32", RyxObjectArrayAppendObject, number, array);
  CHECK_REPORTED(!RyxObjectArrayEmpty(number),
                 "RyxObjectArrayEmpty: the object parameter was not a ryx.object.Array: "
                 "ryx.object.Int32");
  CHECK_REPORTED(RyxObjectDictSize(array) == 0,
                 "RyxObjectDictSize: the object parameter was not a ryx.object.Dictionary: "
                 "ryx.object.Array");
  // A type without a registered name.
  CHECK(RyxObjectTypeName(unregistered) == NULL && RyxObjectType(unregistered) != 0);
  CHECK_NOT_A("ryx.object.Int32", "[not-registered]", RyxObjectInt32Get, unregistered, &read);
  CHECK(text == NULL && copy == NULL && value == 0 && read == 0);
  CHECK(Int32Of(number) == 3 && RyxObjectReferenceCount(number) == 1);
  RyxObjectRelease(number);
  RyxObjectRelease(array);
  RyxObjectRelease(unregistered);
}

// The harness's sink refuses any message that is not from the logger
// "ryx.object" at level 16. A failure whose message cannot be allocated is
// written from a buffer on the stack instead, and must come at that level too.
static void AFailureIsLoggedAtLevel16AlsoWhenItsMessageCannotBeAllocated(void) {
  int32_t value = 0;
  FailNthAllocation(1);
  CHECK_NULL("object", RyxObjectInt32Get, NULL, &value);
  FailNthAllocation(0);
}

TESTS(Generic, TEST_CASE(ReferenceSharesTheValueAndCountsEveryOwner),
      TEST_CASE(StatusMessagesCoverEveryValue),
      TEST_CASE(NullParametersAreNamedAndAnObjectNotConsumed),
      TEST_CASE(AnotherKindIsRefusedNamingBothTypes),
      TEST_CASE(AFailureIsLoggedAtLevel16AlsoWhenItsMessageCannotBeAllocated));
