#include "fixtures.h"
#include "harness.h"

#include <stdint.h>

static RyxObject* ThreeInts(void) {
  return RyxObjectArrayCreateObjects(RyxObjectInt32Create(0), RyxObjectInt32Create(1),
                                     RyxObjectInt32Create(2), NULL);
}

// The array takes over every handle it is given, nested arrays included, and
// releases them with itself. Contains compares identity, not value.
static void CreateConsumesEveryHandleInOrder(void) {
  RyxObject* const a = RyxObjectInt32Create(1);
  RyxObject* const keep = RyxObjectReference(a);
  RyxObject* const inner = RyxObjectArrayCreateObjects(RyxObjectStringCreate("x"), NULL);
  RyxObject* const keepInner = RyxObjectReference(inner);
  RyxObject* const equal = RyxObjectInt32Create(1);
  RyxObject* const array = RyxObjectArrayCreateObjects(a, RyxObjectInt32Create(2), inner, NULL);
  RyxObject* const empty = RyxObjectArrayCreateObjects(NULL);
  CHECK(RyxObjectArrayInstanceOf(array) && RyxObjectArrayType() == RyxObjectType(array));
  CHECK(!RyxObjectArrayInstanceOf(NULL) && !RyxObjectArrayInstanceOf(keep));
  CHECK(RyxObjectArraySize(array) == 3 && RyxObjectArrayEmpty(empty));
  CHECK(Int32Of(RyxObjectArrayPeek(array, 0)) == 1 && Int32Of(RyxObjectArrayPeek(array, 1)) == 2);
  CHECK(RyxObjectReferenceCount(keep) == 2 && RyxObjectReferenceCount(keepInner) == 2);
  CHECK(RyxObjectArrayContains(array, keep) && !RyxObjectArrayContains(array, equal));
  CHECK(!RyxObjectArrayContains(array, NULL) && !RyxObjectArrayContains(NULL, NULL));
  RyxObjectRelease(array);
  CHECK(RyxObjectReferenceCount(keep) == 1 && RyxObjectReferenceCount(keepInner) == 1);
  CHECK(RyxObjectArraySize(keepInner) == 1);
  RyxObjectRelease(keep);
  RyxObjectRelease(keepInner);
  RyxObjectRelease(equal);
  RyxObjectRelease(empty);
}

// The object is consumed whatever the outcome once the array passed its tests;
// an index out of range answers RyxObjectStatusOutOfRange, a schema mismatch
// RyxObjectStatusFailure, and either leaves the array as it was.
static void AddingConsumesTheObjectWhateverTheOutcome(void) {
  RyxObject* const array = ThreeInts();
  RyxObject* const bools = MakeRequiring(RyxObjectArrayType(), RyxObjectBoolType());
  RyxObject* const replaced = RyxObjectReference(RyxObjectArrayPeek(array, 1));
  CHECK_FAILS(RyxObjectStatusOutOfRange,
              "could not set array object: The index is out of range: 5 >= 3",
              RyxObjectArraySetObject, array, 5, RyxObjectInt32Create(9));
  CHECK_FAILS(RyxObjectStatusFailure,
              "could not set array object: The 'object' parameter was a NULL pointer",
              RyxObjectArraySetObject, array, 0, NULL);
  CHECK_FAILS(RyxObjectStatusOutOfRange,
              "could not insert array object: The index is out of range: 4 >= 3",
              RyxObjectArrayInsertObject, array, 4, RyxObjectInt32Create(9));
  CHECK_FAILS(RyxObjectStatusFailure,
              "could not append array object: The object 'ryx.object.Int32' did not match the "
              "required type 'ryx.object.Bool'",
              RyxObjectArrayAppendObject, bools, RyxObjectInt32Create(9));
  CHECK(RyxObjectArraySize(array) == 3 && RyxObjectArrayEmpty(bools));
  CHECK_OK(RyxObjectArrayAppendObject(bools, RyxObjectBoolCreate(true)));
  CHECK_OK(RyxObjectArrayInsertObject(array, 3, RyxObjectInt32Create(9)));
  CHECK_OK(RyxObjectArrayPrependObject(array, RyxObjectInt32Create(-1)));
  CHECK_OK(RyxObjectArraySetObject(array, 2, RyxObjectInt32Create(10)));
  CHECK(RyxObjectReferenceCount(replaced) == 1 && RyxObjectArraySize(bools) == 1);
  CHECK(RyxObjectArraySize(array) == 5 && Int32Of(RyxObjectArrayPeek(array, 0)) == -1);
  CHECK(Int32Of(RyxObjectArrayPeek(array, 2)) == 10 && Int32Of(RyxObjectArrayPeek(array, 4)) == 9);
  RyxObjectRelease(replaced);
  RyxObjectRelease(array);
  RyxObjectRelease(bools);
}

static void StorageCanGrowShrinkAndEmpty(void) {
  RyxObject* const array = RyxObjectArrayCreateObjects(RyxObjectInt32Create(1), NULL);
  CHECK_OK(RyxObjectArrayReserve(array, 100));
  CHECK(RyxObjectArrayCapacity(array) >= 100);
  CHECK_OK(RyxObjectArrayShrink(array));
  CHECK(RyxObjectArrayCapacity(array) == 1);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to reserve memory for the RYX object array: vector::reserve",
              RyxObjectArrayReserve, array, SIZE_MAX);
  CHECK(RyxObjectArrayPeek(array, 0) != NULL && RyxObjectArraySize(array) == 1);
  CHECK_OK(RyxObjectArrayClear(array));
  CHECK(RyxObjectArrayPeek(array, 0) == NULL && RyxObjectArrayEmpty(array));
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to erase the RYX object from the array: The index is out of range: 0 >= 0",
              RyxObjectArrayErase, array, 0);
  RyxObjectRelease(array);
}

// Popping hands over the element as an owned handle; an index out of range or
// another kind answers NULL silently, an empty array with a message.
static void PoppingHandsOverOwnership(void) {
  RyxObject* const array = ThreeInts();
  RyxObject* popped;
  CHECK(RyxObjectArrayPopObject(array, 3) == NULL);
  popped = RyxObjectArrayPopObject(array, 1);
  CHECK(Int32Of(popped) == 1 && RyxObjectReferenceCount(popped) == 1);
  RyxObjectRelease(popped);
  popped = RyxObjectArrayPopFrontObject(array);
  CHECK(Int32Of(popped) == 0);
  RyxObjectRelease(popped);
  popped = RyxObjectArrayPopBackObject(array);
  CHECK(Int32Of(popped) == 2);
  RyxObjectRelease(popped);
  CHECK_FAILS(NULL,
              "could not pop object at the back of the array: The array has no elements to pop "
              "the last element",
              RyxObjectArrayPopBackObject, array);
  CHECK_FAILS(NULL,
              "could not pop object at the front of the array: The array has no elements to "
              "pop the first element",
              RyxObjectArrayPopFrontObject, array);
  CHECK(RyxObjectArrayPopBackObject(NULL) == NULL && RyxObjectArrayPeek(NULL, 0) == NULL);
  RyxObjectRelease(array);
}

TESTS(Array, TEST_CASE(CreateConsumesEveryHandleInOrder),
      TEST_CASE(AddingConsumesTheObjectWhateverTheOutcome), TEST_CASE(StorageCanGrowShrinkAndEmpty),
      TEST_CASE(PoppingHandsOverOwnership));
