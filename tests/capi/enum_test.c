#include "fixtures.h"
#include "harness.h"

#include <stdint.h>
#include <string.h>

static void CreatedEnumeratorsReadBackTheirValue(void) {
  RyxObject* const seven = RyxObjectEnumCreate(7);
  RyxObject* const largest = RyxObjectEnumCreate(65535);
  uint16_t value = 0;
  CHECK(RyxObjectEnumInstanceOf(seven) && !RyxObjectEnumInstanceOf(NULL));
  CHECK(strcmp(RyxObjectTypeName(seven), "ryx.object.Enum") == 0);
  CHECK(RyxObjectEnumType() == RyxObjectType(seven));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumGetValue(seven, &value));
  CHECK(value == 7);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumSetValue(seven, 9));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumGetValue(seven, &value));
  CHECK(value == 9);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumGetValue(largest, &value));
  CHECK(value == 65535);
  RyxObjectRelease(seven);
  RyxObjectRelease(largest);
  CHECK_SILENT();
}

static void NullParametersAndOtherKindsAreRefusedInOrder(void) {
  RyxObject* const number = RyxObjectInt32Create(1);
  uint16_t value = 0;
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectEnumSetValue(NULL, 1));
  CHECK_LOGGED("RyxObjectEnumSetValue: the object parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectEnumGetValue(NULL, NULL));
  CHECK_LOGGED("RyxObjectEnumGetValue: the value parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectEnumGetValue(NULL, &value));
  CHECK_LOGGED("RyxObjectEnumGetValue: the object parameter was NULL");
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectEnumConvertValue(NULL, &value));
  CHECK_LOGGED("RyxObjectEnumConvertValue: the object parameter was NULL");
  CHECK(!RyxObjectEnumInstanceOf(number));
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectEnumSetValue(number, 1));
  CHECK_LOGGED("RyxObjectEnumSetValue: the object parameter was not a ryx.object.Enum: ryx.object.Int32");
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectEnumGetValue(number, &value));
  CHECK_LOGGED("RyxObjectEnumGetValue: the object parameter was not a ryx.object.Enum: ryx.object.Int32");
  CHECK_STATUS(RyxObjectStatusIncorrectType, RyxObjectEnumConvertValue(number, &value));
  CHECK_LOGGED("RyxObjectEnumConvertValue: the object parameter was not a ryx.object.Enum: ryx.object.Int32");
}

static void AnEnumeratorOfNoEnumerationFailsTypedAccess(void) {
  RyxObject* const untyped = MakeDefaultEnum();
  uint16_t value = 42;
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectEnumSetValue(untyped, 1));
  CHECK_LOGGED(
      "RyxObjectEnumSetValue: failed to set the RYX object: Instance of ryx.object.enum.Dummy is "
      "not the same as the enum stored in this class");
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectEnumGetValue(untyped, &value));
  CHECK_LOGGED(
      "RyxObjectEnumGetValue: failed to get the RYX enumerator value: Instance of "
      "ryx.object.enum.Dummy is not the same as the enum stored in this class");
  CHECK(value == 42);
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectEnumConvertValue(untyped, &value));
  CHECK_LOGGED(
      "RyxObjectEnumConvertValue: failed to get the RYX enumerator value: Instance of "
      "ryx.object.enum.Dummy is not the same as the enum stored in this class");
}

static void ConvertValueConsumesTheHandleOnEveryPath(void) {
  RyxObject* const enumerator = RyxObjectEnumCreate(5);
  RyxObject* const keep = RyxObjectReference(enumerator);
  uint16_t value = 0;
  CHECK_STATUS(RyxObjectStatusInvalidParameter, RyxObjectEnumConvertValue(RyxObjectReference(keep), NULL));
  CHECK_LOGGED("RyxObjectEnumConvertValue: the value parameter was NULL");
  CHECK(RyxObjectReferenceCount(keep) == 2);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumConvertValue(enumerator, &value));
  CHECK(value == 5 && RyxObjectReferenceCount(keep) == 1);
  RyxObjectRelease(keep);
}

TestCase const EnumTests[] = {
    TEST_CASE(CreatedEnumeratorsReadBackTheirValue),
    TEST_CASE(NullParametersAndOtherKindsAreRefusedInOrder),
    TEST_CASE(AnEnumeratorOfNoEnumerationFailsTypedAccess),
    TEST_CASE(ConvertValueConsumesTheHandleOnEveryPath),
};
size_t const EnumTestCount = sizeof EnumTests / sizeof EnumTests[0];
