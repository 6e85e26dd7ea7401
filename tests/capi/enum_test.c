#include "fixtures.h"
#include "harness.h"

#include <stdint.h>
#include <string.h>

static void CreatedEnumeratorsReadBackTheirValue(void) {
  RyxObject* const seven = RyxObjectEnumCreate(7);
  RyxObject* const largest = RyxObjectEnumCreate(65535);
  RyxObject* const number = RyxObjectInt32Create(1);
  uint16_t value = 0;
  CHECK(RyxObjectEnumInstanceOf(seven));
  CHECK(!RyxObjectEnumInstanceOf(NULL) && !RyxObjectEnumInstanceOf(number));
  CHECK(strcmp(RyxObjectTypeName(seven), "ryx.object.Enum") == 0);
  CHECK(RyxObjectEnumType() == RyxObjectType(seven));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumGetValue(seven, &value));
  CHECK(value == 7);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumSetValue(seven, 9));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectEnumGetValue(seven, &value));
  CHECK(value == 9);
  CHECK_STATUS(RyxObjectStatusSuccess,
               RyxObjectEnumConvertValue(RyxObjectReference(largest), &value));
  CHECK(value == 65535 && RyxObjectReferenceCount(largest) == 1);
  RyxObjectRelease(seven);
  RyxObjectRelease(largest);
  RyxObjectRelease(number);
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

TestCase const EnumTests[] = {
    TEST_CASE(CreatedEnumeratorsReadBackTheirValue),
    TEST_CASE(AnEnumeratorOfNoEnumerationFailsTypedAccess),
};
size_t const EnumTestCount = sizeof EnumTests / sizeof EnumTests[0];
