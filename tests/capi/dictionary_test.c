#include "fixtures.h"
#include "harness.h"

#include <stdint.h>
#include <string.h>

/* The dictionary takes over every value it is given; when it cannot be
 * made, the values are released. */
static void CreatePairsConsumesEveryValueWhateverTheOutcome(void) {
  RyxObject* const x = RyxObjectInt32Create(1);
  RyxObject* const keep = RyxObjectReference(x);
  RyxObject* const dictionary = RyxObjectDictCreatePairs("a", x, "b", RyxObjectInt32Create(2), NULL);
  RyxObject* const empty = RyxObjectDictCreatePairs(NULL);
  CHECK(RyxObjectDictInstanceOf(dictionary));
  CHECK(!RyxObjectDictInstanceOf(keep) && !RyxObjectDictInstanceOf(NULL));
  CHECK(RyxObjectDictType() == RyxObjectType(dictionary));
  CHECK(RyxObjectDictSize(dictionary) == 2);
  CHECK(Int32Of(RyxObjectDictPeek(dictionary, "a")) == 1);
  CHECK(RyxObjectReferenceCount(keep) == 2);
  CHECK(RyxObjectDictEmpty(empty));
  RyxObjectRelease(dictionary);
  RyxObjectRelease(empty);
  CHECK(RyxObjectReferenceCount(keep) == 1);
  CHECK(RyxObjectDictCreatePairs("a", RyxObjectReference(keep), "a", RyxObjectInt32Create(2), NULL) == NULL);
  CHECK_LOGGED("RyxObjectDictCreatePairs: failed to create the RYX dictionary: Dictionary keys must be unique");
  CHECK(RyxObjectReferenceCount(keep) == 1);
  CHECK(RyxObjectDictCreatePairs("a", NULL) == NULL);
  CHECK_LOGGED("RyxObjectDictCreatePairs: failed to create the RYX dictionary: Must provide key/object pairs");
  RyxObjectRelease(keep);
}

/* Set replaces a value in place, releasing the old one, without a schema
 * check; Insert checks the schema and refuses an existing key. */
static void SetReplacesWithoutASchemaCheckWhileInsertChecks(void) {
  RyxObject* const numbers = MakeDictionaryRequiring(RyxObjectInt32Type());
  RyxObject* const one = RyxObjectInt32Create(1);
  RyxObject* const replaced = RyxObjectReference(one);
  RyxObject* peeked;
  RyxObject* const flag = RyxObjectBoolCreate(true);
  RyxObject* const keep = RyxObjectReference(flag);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectDictSetObject(numbers, "k", one));
  peeked = RyxObjectDictPeek(numbers, "k");
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectDictSetObject(numbers, "k", RyxObjectBoolCreate(false)));
  CHECK(RyxObjectBoolInstanceOf(peeked)); /* the borrowed slot shows the new value */
  CHECK(RyxObjectReferenceCount(replaced) == 1);
  RyxObjectRelease(replaced);
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectDictInsertObject(numbers, "new", flag));
  CHECK_LOGGED(
      "RyxObjectDictInsertObject: could not insert array object: The object 'ryx.object.Bool' did "
      "not match the required type 'ryx.object.Int32'");
  CHECK(RyxObjectReferenceCount(keep) == 1);
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectDictInsertObject(numbers, "k", RyxObjectInt32Create(3)));
  CHECK_LOGGED(
      "RyxObjectDictInsertObject: could not insert array object: The key has already been inserted "
      "into the dictionary");
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectDictSetObject(numbers, NULL, RyxObjectInt32Create(3)));
  CHECK_LOGGED(
      "RyxObjectDictSetObject: could not set array object: basic_string: construction from null is "
      "not valid");
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectDictSetObject(numbers, "z", MakeEmptyHandle()));
  CHECK_LOGGED(
      "RyxObjectDictSetObject: could not set array object: Cannot set null object pointers in an "
      "dictionary");
  CHECK(RyxObjectDictSize(numbers) == 1);
  RyxObjectRelease(keep);
  RyxObjectRelease(numbers);
}

static void KeysAndObjectsCanBeFoundRemovedAndPopped(void) {
  RyxObject* const value = RyxObjectInt32Create(7);
  RyxObject* const second = RyxObjectReference(value);
  RyxObject* const dictionary = RyxObjectDictCreatePairs("", value, "b", RyxObjectInt32Create(8), NULL);
  RyxObject* popped;
  CHECK(RyxObjectDictContainsKey(dictionary, ""));
  CHECK(RyxObjectDictContainsObject(dictionary, second));
  CHECK(RyxObjectDictPeek(dictionary, "missing") == NULL);
  /* Silently false or NULL: a null key or object, whatever the handle, and
   * peeking or popping at another kind or a null handle. */
  CHECK(!RyxObjectDictContainsKey(second, NULL) && !RyxObjectDictContainsObject(second, NULL));
  CHECK(RyxObjectDictPeek(second, "") == NULL && RyxObjectDictPopObject(NULL, "") == NULL);
  CHECK(RyxObjectDictPeek(dictionary, NULL) == NULL);
  CHECK_LOGGED("RyxObjectDictPeek: could not get array object: basic_string: construction from null is not valid");
  CHECK_STATUS(RyxObjectStatusFailure, RyxObjectDictErase(dictionary, "missing"));
  CHECK_LOGGED(
      "RyxObjectDictErase: failed to erase the RYX object from the dictionary: Key was not found "
      "in the dictionary: missing");
  CHECK(RyxObjectDictPopObject(dictionary, "missing") == NULL);
  CHECK_LOGGED("RyxObjectDictPopObject: could not get array object: Key was not found in the dictionary: missing");
  popped = RyxObjectDictPopObject(dictionary, "");
  CHECK(popped != NULL && RyxObjectReferenceCount(second) == 2);
  CHECK(!RyxObjectDictContainsObject(dictionary, popped));
  RyxObjectRelease(popped);
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectDictErase(dictionary, "b"));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectDictReserve(dictionary, 64));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectDictSetObject(dictionary, "c", RyxObjectInt32Create(1)));
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectDictClear(dictionary));
  CHECK(RyxObjectDictEmpty(dictionary));
  RyxObjectRelease(second);
  RyxObjectRelease(dictionary);
}

TestCase const DictionaryTests[] = {
    TEST_CASE(CreatePairsConsumesEveryValueWhateverTheOutcome),
    TEST_CASE(SetReplacesWithoutASchemaCheckWhileInsertChecks),
    TEST_CASE(KeysAndObjectsCanBeFoundRemovedAndPopped),
};
size_t const DictionaryTestCount = sizeof DictionaryTests / sizeof DictionaryTests[0];
