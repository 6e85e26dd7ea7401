#include "fixtures.h"
#include "harness.h"

#include <stdint.h>
#include <string.h>

static void CreatedEnumeratorsReadBackTheirValue(void) {
  RyxObject* const seven = RyxObjectEnumCreate(7);
  RyxObject* const number = RyxObjectInt32Create(1);
  uint16_t value = 0;
  CHECK(RyxObjectEnumInstanceOf(seven) && RyxObjectEnumType() == RyxObjectType(seven));
  CHECK(!RyxObjectEnumInstanceOf(NULL) && !RyxObjectEnumInstanceOf(number));
  CHECK(strcmp(RyxObjectTypeName(seven), "ryx.object.Enum") == 0);
  CHECK(RyxObjectEnumGetValue(seven, &value) == RyxObjectStatusSuccess && value == 7);
  CHECK_OK(RyxObjectEnumSetValue(seven, 65535));
  CHECK(RyxObjectEnumConvertValue(seven, &value) == RyxObjectStatusSuccess && value == 65535);
  RyxObjectRelease(number);
}

// An enumerator as the registry makes it, of no enumeration yet.
static void AnEnumeratorOfNoEnumerationFailsTypedAccess(void) {
  RyxObject* const untyped = MakeDefaultEnum();
  uint16_t value = 42;
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to set the RYX object: Instance of ryx.object.enum.Dummy is not the same as "
              "the enum stored in this class",
              RyxObjectEnumSetValue, untyped, 1);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to get the RYX enumerator value: Instance of ryx.object.enum.Dummy is not "
              "the same as the enum stored in this class",
              RyxObjectEnumGetValue, untyped, &value);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to get the RYX enumerator value: Instance of ryx.object.enum.Dummy is not "
              "the same as the enum stored in this class",
              RyxObjectEnumConvertValue, untyped, &value);
  CHECK(value == 42);
}

TESTS(Enum, TEST_CASE(CreatedEnumeratorsReadBackTheirValue),
      TEST_CASE(AnEnumeratorOfNoEnumerationFailsTypedAccess));
