/*
 * The eleven boolean and numeric families, tested through one table. Each
 * family is reduced to adapters over two sample values, "first" (0) and
 * "second" (1), so that one test body covers every family.
 */
#include "fixtures.h"
#include "harness.h"

#include <float.h>
#include <math.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

/* What a read wrote: 0 or 1 for a sample, Untouched when nothing was written. */
enum { Untouched = -1, Other = -2 };

typedef struct Family {
  char const* kind;
  char const* typeName;
  char const* createWords;
  uint32_t (*type)(void);
  bool (*instanceOf)(RyxObject const* object);
  RyxObject* (*create)(int sample);
  RyxObjectStatus (*set)(RyxObject* object, int sample);
  /* A null `sample` passes a null output pointer. */
  RyxObjectStatus (*get)(RyxObject const* object, int* sample);
  RyxObjectStatus (*convert)(RyxObject* object, int* sample);
} Family;

/* The Get and Convert adapters: read into a CType, then name the sample. */
#define READER(Kind, CType, Operation, Handle)                           \
  static RyxObjectStatus Kind##Operation(Handle object, int* sample) {   \
    CType read;                                                          \
    RyxObjectStatus status;                                              \
    if (sample == NULL) return RyxObject##Kind##Operation(object, NULL); \
    memset(&read, 0x5A, sizeof read);                                    \
    status = RyxObject##Kind##Operation(object, &read);                  \
    *sample = Kind##Which(&read);                                        \
    return status;                                                       \
  }

/* Reads are compared byte for byte, so a NaN sample must come back unchanged. */
#define FAMILY(Kind, CType, First, Second)                                           \
  static CType Kind##Sample(int sample) { return sample == 0 ? (First) : (Second); } \
  static int Kind##Which(CType const* read) {                                        \
    CType const first = First;                                                       \
    CType const second = Second;                                                     \
    CType untouched;                                                                 \
    memset(&untouched, 0x5A, sizeof untouched);                                      \
    if (memcmp(read, &first, sizeof *read) == 0) return 0;                           \
    if (memcmp(read, &second, sizeof *read) == 0) return 1;                          \
    if (memcmp(read, &untouched, sizeof *read) == 0) return Untouched;               \
    return Other;                                                                    \
  }                                                                                  \
  static RyxObject* Kind##Create(int sample) {                                       \
    return RyxObject##Kind##Create(Kind##Sample(sample));                            \
  }                                                                                  \
  static RyxObjectStatus Kind##Set(RyxObject* object, int sample) {                  \
    return RyxObject##Kind##Set(object, Kind##Sample(sample));                       \
  }                                                                                  \
  READER(Kind, CType, Get, RyxObject const*)                                         \
  READER(Kind, CType, Convert, RyxObject*)

FAMILY(Bool, bool, true, false)
FAMILY(Int8, int8_t, INT8_MIN, INT8_MAX)
FAMILY(Int16, int16_t, INT16_MIN, INT16_MAX)
FAMILY(Int32, int32_t, -5, INT32_MAX)
FAMILY(Int64, int64_t, INT64_MIN, INT64_MAX)
FAMILY(UInt8, uint8_t, UINT8_MAX, 0)
FAMILY(UInt16, uint16_t, UINT16_MAX, 1)
FAMILY(UInt32, uint32_t, UINT32_MAX, 7)
FAMILY(UInt64, uint64_t, UINT64_MAX, 1)
FAMILY(Float, float, NAN, -0.0f)
FAMILY(Double, double, -DBL_MAX, (double)NAN)

/* clang-format off */
#define ENTRY(Kind, TypeName, CreateWords)                                        \
  { #Kind, TypeName, CreateWords, RyxObject##Kind##Type, RyxObject##Kind##InstanceOf, \
    Kind##Create, Kind##Set, Kind##Get, Kind##Convert }
/* clang-format on */

static Family const Families[] = {
    ENTRY(Bool, "ryx.object.Bool", "the RYX boolean"),
    ENTRY(Int8, "ryx.object.Int8", "the RYX 8-bit integer"),
    ENTRY(Int16, "ryx.object.Int16", "the RYX 16-bit integer"),
    ENTRY(Int32, "ryx.object.Int32", "the RYX 32-bit integer"),
    ENTRY(Int64, "ryx.object.Int64", "the RYX 64-bit integer"),
    ENTRY(UInt8, "ryx.object.UInt8", "the RYX 8-bit unsigned integer"),
    ENTRY(UInt16, "ryx.object.UInt16", "the RYX 16-bit unsigned integer"),
    ENTRY(UInt32, "ryx.object.UInt32", "the RYX 32-bit unsigned integer"),
    ENTRY(UInt64, "ryx.object.UInt64", "the RYX 64-bit unsigned integer"),
    ENTRY(Float, "ryx.object.Float", "the RYX float"),
    ENTRY(Double, "ryx.object.Double", "the RYX double"),
};
#define FAMILY_COUNT (sizeof Families / sizeof Families[0])

/* A family of another kind, for the wrong-type paths. */
static Family const* OtherThan(size_t index) { return &Families[(index + 1) % FAMILY_COUNT]; }

/* Checks a failed call's status and the one message it logged: for
 * RyxObjectStatusInvalidParameter `detail` names the NULL parameter, for
 * RyxObjectStatusIncorrectType it is the name of the type given. */
#define CHECK_FAILED(expected, actual, family, operation, detail) \
  CheckFailedAt(__LINE__, expected, actual, family, operation, detail)
static void CheckFailedAt(int line, RyxObjectStatus expected, RyxObjectStatus actual,
                          Family const* f, char const* operation, char const* detail) {
  char message[256];
  if (expected == RyxObjectStatusInvalidParameter) {
    snprintf(message, sizeof message, "RyxObject%s%s: the %s parameter was NULL", f->kind,
             operation, detail);
  } else {
    snprintf(message, sizeof message, "RyxObject%s%s: the object parameter was not a %s: %s",
             f->kind, operation, f->typeName, detail);
  }
  if (actual != expected) {
    CheckFailed(__FILE__, line, "the status");
  }
  CheckLoggedAt(__FILE__, line, message);
}

static void EveryKindCreatesReadsAndSetsItsValueThroughEveryHandle(void) {
  size_t i, j;
  for (i = 0; i < FAMILY_COUNT; ++i) {
    Family const* const f = &Families[i];
    RyxObject* const object = f->create(0);
    RyxObject* const other = OtherThan(i)->create(0);
    RyxObject* second;
    int sample = Other;
    CHECK(object != NULL && f->instanceOf(object));
    CHECK(!f->instanceOf(NULL) && !f->instanceOf(other));
    CHECK(RyxObjectType(object) == f->type());
    for (j = i + 1; j < FAMILY_COUNT; ++j) {
      CHECK(Families[j].type() != f->type());
    }
    CHECK(strcmp(RyxObjectTypeName(object), f->typeName) == 0);
    CHECK(RyxObjectReferenceCount(object) == 1);
    CHECK_STATUS(RyxObjectStatusSuccess, f->get(object, &sample));
    CHECK(sample == 0);
    second = RyxObjectReference(object);
    CHECK_STATUS(RyxObjectStatusSuccess, f->set(object, 1));
    CHECK_STATUS(RyxObjectStatusSuccess, f->get(second, &sample));
    CHECK(sample == 1);
    RyxObjectRelease(second);
    RyxObjectRelease(object);
    RyxObjectRelease(other);
  }
}

/* The handle is tested first, then the output pointer, then the kind; a
 * failure writes nothing and changes no value. Convert consumes its handle on
 * every path but a NULL one, and still delivers the value of a last handle. */
static void FailuresAreReportedInOrderAndConvertConsumesItsHandle(void) {
  size_t i;
  for (i = 0; i < FAMILY_COUNT; ++i) {
    Family const* const f = &Families[i];
    Family const* const other = OtherThan(i);
    RyxObject* const object = f->create(1);
    RyxObject* const wrong = other->create(0);
    int sample = Other;
    CHECK_FAILED(RyxObjectStatusInvalidParameter, f->set(NULL, 0), f, "Set", "object");
    CHECK_FAILED(RyxObjectStatusInvalidParameter, f->get(NULL, NULL), f, "Get", "object");
    CHECK_FAILED(RyxObjectStatusInvalidParameter, f->convert(NULL, &sample), f, "Convert",
                 "object");
    CHECK_FAILED(RyxObjectStatusInvalidParameter, f->get(object, NULL), f, "Get", "value");
    CHECK_FAILED(RyxObjectStatusInvalidParameter, f->convert(RyxObjectReference(object), NULL), f,
                 "Convert", "value");
    CHECK_FAILED(RyxObjectStatusIncorrectType, f->get(wrong, &sample), f, "Get", other->typeName);
    CHECK(sample == Untouched);
    CHECK_FAILED(RyxObjectStatusIncorrectType, f->set(wrong, 1), f, "Set", other->typeName);
    CHECK_FAILED(RyxObjectStatusIncorrectType, f->convert(RyxObjectReference(wrong), &sample), f,
                 "Convert", other->typeName);
    CHECK(sample == Untouched);
    CHECK(RyxObjectReferenceCount(object) == 1 && RyxObjectReferenceCount(wrong) == 1);
    CHECK_STATUS(RyxObjectStatusSuccess, other->get(wrong, &sample));
    CHECK(sample == 0);
    CHECK_STATUS(RyxObjectStatusSuccess, f->convert(RyxObjectReference(object), &sample));
    CHECK(sample == 1 && RyxObjectReferenceCount(object) == 1);
    sample = Other;
    CHECK_STATUS(RyxObjectStatusSuccess, f->convert(object, &sample));
    CHECK(sample == 1);
    RyxObjectRelease(wrong);
  }
}

static void CreateReportsAFailedAllocationOfTheValueOrOfTheHandle(void) {
  size_t i;
  int nth;
  char message[128];
  for (i = 0; i < FAMILY_COUNT; ++i) {
    snprintf(message, sizeof message, "RyxObject%sCreate: failed to create %s: std::bad_alloc",
             Families[i].kind, Families[i].createWords);
    for (nth = 1; nth <= 2; ++nth) {
      FailNthAllocation(nth);
      CHECK_REPORTED(Families[i].create(0) == NULL, message);
    }
  }
  FailNthAllocation(0);
}

TestCase const PrimitiveTests[] = {
    TEST_CASE(EveryKindCreatesReadsAndSetsItsValueThroughEveryHandle),
    TEST_CASE(FailuresAreReportedInOrderAndConvertConsumesItsHandle),
    TEST_CASE(CreateReportsAFailedAllocationOfTheValueOrOfTheHandle),
};
size_t const PrimitiveTestCount = sizeof PrimitiveTests / sizeof PrimitiveTests[0];
