// The eleven boolean and numeric kinds: one test per kind, stamped out from one
// body over two values of the kind, compared byte for byte (so a NaN must come
// back unchanged), and a value of another kind.
#include "fixtures.h"
#include "harness.h"

#include <float.h>
#include <math.h>
#include <stdint.h>
#include <string.h>

// The handle is tested first, then the output pointer, then the kind; a
// failure writes nothing and changes no value. Convert consumes its handle on
// every path but a NULL one, and still delivers the value of a last handle.
// Create reports a failed allocation of the value or of the handle.
#define KIND_TEST(Kind, CType, First, Second, Words, Other)                                      \
  static void Kind##Functions(void) {                                                            \
    CType const first = First;                                                                   \
    CType const second = Second;                                                                 \
    CType value;                                                                                 \
    CType untouched;                                                                             \
    RyxObject* const object = RyxObject##Kind##Create(first);                                    \
    RyxObject* const wrong = RyxObject##Other##Create(0);                                        \
    RyxObject* const shared = RyxObjectReference(object);                                        \
    int nth;                                                                                     \
    CHECK(RyxObject##Kind##InstanceOf(object) && !RyxObject##Kind##InstanceOf(NULL));            \
    CHECK(!RyxObject##Kind##InstanceOf(wrong) &&                                                 \
          RyxObjectType(object) == RyxObject##Kind##Type());                                     \
    CHECK(strcmp(RyxObjectTypeName(object), "ryx.object." #Kind) == 0);                          \
    CHECK_OK(RyxObject##Kind##Get(object, &value));                                              \
    CHECK(memcmp(&value, &first, sizeof value) == 0);                                            \
    CHECK_OK(RyxObject##Kind##Set(object, second));                                              \
    memset(&value, 0x5A, sizeof value);                                                          \
    memset(&untouched, 0x5A, sizeof value);                                                      \
    CHECK_NULL("object", RyxObject##Kind##Set, NULL, first);                                     \
    CHECK_NULL("object", RyxObject##Kind##Get, NULL, NULL);                                      \
    CHECK_NULL("object", RyxObject##Kind##Convert, NULL, &value);                                \
    CHECK_NULL("value", RyxObject##Kind##Get, object, NULL);                                     \
    CHECK_NULL("value", RyxObject##Kind##Convert, RyxObjectReference(object), NULL);             \
    CHECK_NOT_A("ryx.object." #Kind, "ryx.object." #Other, RyxObject##Kind##Get, wrong, &value); \
    CHECK_NOT_A("ryx.object." #Kind, "ryx.object." #Other, RyxObject##Kind##Set, wrong, first);  \
    CHECK_NOT_A("ryx.object." #Kind, "ryx.object." #Other, RyxObject##Kind##Convert,             \
                RyxObjectReference(wrong), &value);                                              \
    CHECK(memcmp(&value, &untouched, sizeof value) == 0);                                        \
    CHECK(RyxObjectReferenceCount(object) == 2 && RyxObjectReferenceCount(wrong) == 1);          \
    CHECK_OK(RyxObject##Kind##Convert(shared, &value));                                          \
    CHECK(memcmp(&value, &second, sizeof value) == 0 && RyxObjectReferenceCount(object) == 1);   \
    memset(&value, 0x5A, sizeof value);                                                          \
    CHECK_OK(RyxObject##Kind##Convert(object, &value));                                          \
    CHECK(memcmp(&value, &second, sizeof value) == 0);                                           \
    RyxObjectRelease(wrong);                                                                     \
    for (nth = 1; nth <= 2; ++nth) {                                                             \
      FailNthAllocation(nth);                                                                    \
      CHECK_REPORTED(RyxObject##Kind##Create(first) == NULL,                                     \
                     "RyxObject" #Kind "Create: failed to create " Words ": std::bad_alloc");    \
    }                                                                                            \
    FailNthAllocation(0);                                                                        \
  }

KIND_TEST(Bool, bool, true, false, "the RYX boolean", Int8)
KIND_TEST(Int8, int8_t, INT8_MIN, INT8_MAX, "the RYX 8-bit integer", Int16)
KIND_TEST(Int16, int16_t, INT16_MIN, INT16_MAX, "the RYX 16-bit integer", Int32)
KIND_TEST(Int32, int32_t, -5, INT32_MAX, "the RYX 32-bit integer", Int64)
KIND_TEST(Int64, int64_t, INT64_MIN, INT64_MAX, "the RYX 64-bit integer", UInt8)
KIND_TEST(UInt8, uint8_t, UINT8_MAX, 0, "the RYX 8-bit unsigned integer", UInt16)
KIND_TEST(UInt16, uint16_t, UINT16_MAX, 1, "the RYX 16-bit unsigned integer", UInt32)
KIND_TEST(UInt32, uint32_t, UINT32_MAX, 7, "the RYX 32-bit unsigned integer", UInt64)
KIND_TEST(UInt64, uint64_t, UINT64_MAX, 1, "the RYX 64-bit unsigned integer", Float)
KIND_TEST(Float, float, NAN, -0.0f, "the RYX float", Double)
KIND_TEST(Double, double, -DBL_MAX, (double)NAN, "the RYX double", Bool)

TESTS(Primitive, TEST_CASE(BoolFunctions), TEST_CASE(Int8Functions), TEST_CASE(Int16Functions),
      TEST_CASE(Int32Functions), TEST_CASE(Int64Functions), TEST_CASE(UInt8Functions),
      TEST_CASE(UInt16Functions), TEST_CASE(UInt32Functions), TEST_CASE(UInt64Functions),
      TEST_CASE(FloatFunctions), TEST_CASE(DoubleFunctions));
