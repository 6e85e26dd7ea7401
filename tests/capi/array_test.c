#include "fixtures.h"
#include "harness.h"

#include <stdint.h>

/* The array takes over every handle it is given, nested arrays included,
 * and releases them with itself. */
static void CreateConsumesEveryHandleInOrder(void) {
  RyxObject* const a = RyxObjectInt32Create(1);
  RyxObject* const keep = RyxObjectReference(a);
  RyxObject* const inner = RyxObjectArrayCreateObjects(RyxObjectStringCreate("x"), NULL);
  RyxObject* const keepInner = RyxObjectReference(inner);
  RyxObject* const equal = RyxObjectInt32Create(1);
  RyxObject* const array = RyxObjectArrayCreateObjects(a, RyxObjectInt32Create(2), inner, NULL);
  RyxObject* const empty = RyxObjectArrayCreateObjects(NULL);
  CHECK(RyxObjectArrayInstanceOf(array));
  CHECK(!RyxObjectArrayInstanceOf(NULL) && !RyxObjectArrayInstanceOf(keep));
  CHECK(RyxObjectArrayType() == RyxObjectType(array));
  CHECK(RyxObjectArraySize(array) == 3);
  CHECK(Int32Of(RyxObjectArrayPeek(array, 0)) == 1);
  CHECK(Int32Of(RyxObjectArrayPeek(array, 1)) == 2);
  CHECK(RyxObjectReferenceCount(keep) == 2 && RyxObjectReferenceCount(keepInner) == 2);
  /* Contains compares identity, not value. */
  CHECK(RyxObjectArrayContains(array, keep) && !RyxObjectArrayContains(array, equal));
  CHECK(!RyxObjectArrayContains(array, NULL) && !RyxObjectArrayContains(NULL, NULL));
  CHECK(RyxObjectArrayEmpty(empty));
  RyxObjectRelease(array);
  CHECK(RyxObjectReferenceCount(keep) == 1 && RyxObjectReferenceCount(keepInner) == 1);
  CHECK(RyxObjectArraySize(keepInner) == 1);
  RyxObjectRelease(keep);
  RyxObjectRelease(keepInner);
  RyxObjectRelease(equal);
  RyxObjectRelease(empty);
}

static void AddingConsumesTheObjectWhateverTheOutcome(void) {
  RyxObject* const array = RyxObjectArrayCreateObjects(RyxObjectInt32Create(0), RyxObjectInt32Create(1),
                                                       RyxObjectInt32Create(2), NULL);
  RyxObject* const object = RyxObjectInt32Create(9);
  RyxObject* const keep = RyxObjectReference(object);
  RyxObject* replaced;
  CHECK_STATUS(RyxObjectStatusOutOfRange, RyxObjectArraySetObject(array, 5, object));
  CHECK_LOGGED("RyxObjectArraySetObject: could not set array object: The index is out of range: 5 >= 3");
  CHECK(RyxObjectReferenceCount(keep) == 1);
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectArraySetObject(array, 0, NULL));
  CHECK_LOGGED("RyxObjectArraySetObject: could not set array object: The 'object' parameter was a NULL pointer");
  CHECK_STATUS(RyxObjectStatusOutOfRange, RyxObjectArrayInsertObject(array, 4, RyxObjectReference(keep)));
  CHECK_LOGGED("RyxObjectArrayInsertObject: could not insert array object: The index is out of range: 4 >= 3");
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArrayInsertObject(array, 3, RyxObjectReference(keep)));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArrayPrependObject(array, RyxObjectInt32Create(-1)));
  replaced = RyxObjectReference(RyxObjectArrayPeek(array, 1));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArraySetObject(array, 1, RyxObjectInt32Create(10)));
  CHECK(RyxObjectReferenceCount(replaced) == 1);
  RyxObjectRelease(replaced);
  CHECK(RyxObjectArraySize(array) == 5);
  CHECK(Int32Of(RyxObjectArrayPeek(array, 0)) == -1);
  CHECK(Int32Of(RyxObjectArrayPeek(array, 1)) == 10);
  CHECK(RyxObjectArrayPeek(array, 4) != NULL && Int32Of(RyxObjectArrayPeek(array, 4)) == 9);
  CHECK(RyxObjectArrayContains(array, keep));
  RyxObjectRelease(array);
  RyxObjectRelease(keep);
}

static void ASchemaMismatchFailsAndLeavesTheArrayAsItWas(void) {
  RyxObject* const bools = MakeArrayRequiring(RyxObjectBoolType());
  RyxObject* const number = RyxObjectInt32Create(1);
  RyxObject* const keep = RyxObjectReference(number);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArrayAppendObject(bools, RyxObjectBoolCreate(true)));
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectArrayAppendObject(bools, number));
  CHECK_LOGGED(
      "RyxObjectArrayAppendObject: could not append array object: The object 'ryx.object.Int32' "
      "did not match the required type 'ryx.object.Bool'");
  CHECK(RyxObjectReferenceCount(keep) == 1);
  CHECK(RyxObjectArraySize(bools) == 1);
  RyxObjectRelease(keep);
  RyxObjectRelease(bools);
}

static void StorageCanGrowShrinkAndEmpty(void) {
  RyxObject* const array = RyxObjectArrayCreateObjects(RyxObjectInt32Create(1), NULL);
  RyxObject* peeked;
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArrayReserve(array, 100));
  CHECK(RyxObjectArrayCapacity(array) >= 100);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArrayShrink(array));
  CHECK(RyxObjectArrayCapacity(array) == 1);
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectArrayReserve(array, SIZE_MAX));
  CHECK_LOGGED("RyxObjectArrayReserve: failed to reserve memory for the RYX object array: vector::reserve");
  peeked = RyxObjectArrayPeek(array, 0);
  CHECK(peeked != NULL && RyxObjectArraySize(array) == 1);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectArrayClear(array));
  CHECK(RyxObjectArrayPeek(array, 0) == NULL);
  CHECK(RyxObjectArrayEmpty(array));
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectArrayErase(array, 0));
  CHECK_LOGGED(
      "RyxObjectArrayErase: failed to erase the RYX object from the array: The index is out of "
      "range: 0 >= 0");
  RyxObjectRelease(array);
}

static void PoppingHandsOverOwnership(void) {
  RyxObject* const array = RyxObjectArrayCreateObjects(
      RyxObjectInt32Create(1), RyxObjectInt32Create(2), RyxObjectInt32Create(3), NULL);
  RyxObject* popped;
  CHECK(RyxObjectArrayPopObject(array, 3) == NULL); /* silently */
  popped = RyxObjectArrayPopObject(array, 1);
  CHECK(Int32Of(popped) == 2 && RyxObjectReferenceCount(popped) == 1);
  RyxObjectRelease(popped);
  popped = RyxObjectArrayPopFrontObject(array);
  CHECK(Int32Of(popped) == 1);
  RyxObjectRelease(popped);
  popped = RyxObjectArrayPopBackObject(array);
  CHECK(Int32Of(popped) == 3);
  RyxObjectRelease(popped);
  CHECK(RyxObjectArrayPopBackObject(array) == NULL);
  CHECK_LOGGED(
      "RyxObjectArrayPopBackObject: could not pop object at the back of the array: The array has "
      "no elements to pop the last element");
  CHECK(RyxObjectArrayPopFrontObject(array) == NULL);
  CHECK_LOGGED(
      "RyxObjectArrayPopFrontObject: could not pop object at the front of the array: The array "
      "has no elements to pop the first element");
  CHECK(RyxObjectArrayPopBackObject(NULL) == NULL && RyxObjectArrayPeek(NULL, 0) == NULL);
  RyxObjectRelease(array);
}

TestCase const ArrayTests[] = {
    TEST_CASE(CreateConsumesEveryHandleInOrder),
    TEST_CASE(AddingConsumesTheObjectWhateverTheOutcome),
    TEST_CASE(ASchemaMismatchFailsAndLeavesTheArrayAsItWas),
    TEST_CASE(StorageCanGrowShrinkAndEmpty),
    TEST_CASE(PoppingHandsOverOwnership),
};
size_t const ArrayTestCount = sizeof ArrayTests / sizeof ArrayTests[0];
