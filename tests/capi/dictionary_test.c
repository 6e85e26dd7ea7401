#include "fixtures.h"
#include "harness.h"

#include <stdint.h>
#include <string.h>

// The dictionary takes over every value it is given, and when it cannot be
// made releases them.
static void CreatePairsConsumesEveryValueWhateverTheOutcome(void) {
  RyxObject* const keep = RyxObjectInt32Create(1);
  RyxObject* const dictionary =
      RyxObjectDictCreatePairs("a", RyxObjectReference(keep), "b", RyxObjectInt32Create(2), NULL);
  RyxObject* const empty = RyxObjectDictCreatePairs(NULL);
  CHECK(RyxObjectDictInstanceOf(dictionary) && RyxObjectDictType() == RyxObjectType(dictionary));
  CHECK(!RyxObjectDictInstanceOf(keep) && !RyxObjectDictInstanceOf(NULL));
  CHECK(RyxObjectDictSize(dictionary) == 2 && RyxObjectDictEmpty(empty));
  CHECK(Int32Of(RyxObjectDictPeek(dictionary, "a")) == 1 && RyxObjectReferenceCount(keep) == 2);
  RyxObjectRelease(dictionary);
  RyxObjectRelease(empty);
  CHECK(RyxObjectReferenceCount(keep) == 1);
  CHECK_FAILS(NULL, "failed to create the RYX dictionary: Dictionary keys must be unique",
              RyxObjectDictCreatePairs, "a", RyxObjectReference(keep), "a", RyxObjectInt32Create(2),
              NULL);
  CHECK_FAILS(NULL, "failed to create the RYX dictionary: Must provide key/object pairs",
              RyxObjectDictCreatePairs, "a", NULL);
  RyxObjectRelease(keep);
}

// Set replaces a value in place, releasing the old one, without a schema
// check; Insert checks the schema and refuses an existing key.
static void SetReplacesWithoutASchemaCheckWhileInsertChecks(void) {
  RyxObject* const numbers = MakeRequiring(RyxObjectDictType(), RyxObjectInt32Type());
  RyxObject* const replaced = RyxObjectInt32Create(1);
  RyxObject* peeked;
  CHECK_OK(RyxObjectDictSetObject(numbers, "k", RyxObjectReference(replaced)));
  peeked = RyxObjectDictPeek(numbers, "k");
  CHECK_OK(RyxObjectDictSetObject(numbers, "k", RyxObjectBoolCreate(false)));
  // The borrowed slot shows the new value.
  CHECK(RyxObjectBoolInstanceOf(peeked) && RyxObjectReferenceCount(replaced) == 1);
  CHECK_FAILS(RyxObjectStatusFailure,
              "could not insert array object: The object 'ryx.object.Bool' did not match the "
              "required type 'ryx.object.Int32'",
              RyxObjectDictInsertObject, numbers, "new", RyxObjectBoolCreate(true));
  CHECK_FAILS(RyxObjectStatusFailure,
              "could not insert array object: The key has already been inserted into the "
              "dictionary",
              RyxObjectDictInsertObject, numbers, "k", RyxObjectInt32Create(3));
  CHECK_FAILS(RyxObjectStatusFailure,
              "could not set array object: basic_string: construction from null is not valid",
              RyxObjectDictSetObject, numbers, NULL, RyxObjectInt32Create(3));
  CHECK_FAILS(RyxObjectStatusFailure,
              "could not set array object: Cannot set null object pointers in an dictionary",
              RyxObjectDictSetObject, numbers, "z", MakeEmptyHandle());
  CHECK(RyxObjectDictSize(numbers) == 1);
  RyxObjectRelease(replaced);
  RyxObjectRelease(numbers);
}

static void KeysAndObjectsCanBeFoundRemovedAndPopped(void) {
  RyxObject* const value = RyxObjectInt32Create(7);
  RyxObject* const dictionary =
      RyxObjectDictCreatePairs("", RyxObjectReference(value), "b", RyxObjectInt32Create(8), NULL);
  RyxObject* popped;
  CHECK(RyxObjectDictContainsKey(dictionary, "") && RyxObjectDictContainsObject(dictionary, value));
  CHECK(RyxObjectDictPeek(dictionary, "missing") == NULL);
  // Silently false or NULL: a null key or object, whatever the handle, and
  // peeking or popping at another kind or a null handle.
  CHECK(!RyxObjectDictContainsKey(value, NULL) && !RyxObjectDictContainsObject(value, NULL));
  CHECK(RyxObjectDictPeek(value, "") == NULL && RyxObjectDictPopObject(NULL, "") == NULL);
  CHECK_FAILS(NULL, "could not get array object: basic_string: construction from null is not valid",
              RyxObjectDictPeek, dictionary, NULL);
  CHECK_FAILS(RyxObjectStatusFailure,
              "failed to erase the RYX object from the dictionary: Key was not found in the "
              "dictionary: missing",
              RyxObjectDictErase, dictionary, "missing");
  CHECK_FAILS(NULL, "could not get array object: Key was not found in the dictionary: missing",
              RyxObjectDictPopObject, dictionary, "missing");
  popped = RyxObjectDictPopObject(dictionary, "");
  CHECK(popped != NULL && RyxObjectReferenceCount(value) == 2);
  CHECK(!RyxObjectDictContainsObject(dictionary, popped));
  RyxObjectRelease(popped);
  CHECK_OK(RyxObjectDictErase(dictionary, "b"));
  CHECK(RyxObjectDictEmpty(dictionary));
  CHECK_OK(RyxObjectDictReserve(dictionary, 64));
  CHECK_OK(RyxObjectDictSetObject(dictionary, "c", RyxObjectInt32Create(1)));
  CHECK_OK(RyxObjectDictClear(dictionary));
  CHECK(RyxObjectDictEmpty(dictionary));
  RyxObjectRelease(value);
  RyxObjectRelease(dictionary);
}

TESTS(Dictionary, TEST_CASE(CreatePairsConsumesEveryValueWhateverTheOutcome),
      TEST_CASE(SetReplacesWithoutASchemaCheckWhileInsertChecks),
      TEST_CASE(KeysAndObjectsCanBeFoundRemovedAndPopped));
