/*
 * The C interface of the object model.
 *
 * HANDLES
 *
 * A value is reached through an opaque handle, RyxObject*. A handle is one
 * owner of its value; the value lives as long as any handle, container or
 * C++ holder shares it. Every function below says, for each handle it takes
 * or gives, which of four kinds it is:
 *
 *   borrowed          The function only looks through the handle. It stays
 *                     valid and yours.
 *   consumed          The function takes the handle over and frees it. Never
 *                     use or release it again. Where a function consumes only
 *                     on some paths, its comment says which.
 *   returned owned    A new handle. Release it with RyxObjectRelease (or hand
 *                     it to a consuming function).
 *   returned borrowed A view of a container's own slot, valid until the
 *                     container changes. Never release or consume it; call
 *                     RyxObjectReference on it to keep the value.
 *
 * Handles are never pooled or reused. Functions that change a value change
 * the shared value, so every handle sharing it sees the change.
 *
 * ERRORS
 *
 * No exception ever leaves a function: every failure, a NULL argument or a
 * value of the wrong kind included, is answered with a status code, NULL, 0
 * or false, and (unless the function's comment says it is silent) with
 * exactly one message to the logger "ryx.object" at level 16, for example
 * "RyxObjectInt32Get: the value parameter was NULL". Messages go to stderr,
 * or to the sink set with RyxLoggingSetSink (<ryx/logging.h>). A failed call
 * leaves the value as it was; a handle it consumed stays consumed.
 * Arguments are checked in their order: NULL handle, then NULL output
 * pointer, then the type of the handle's value.
 *
 * THREADS
 *
 * The interface has no lock of its own. Different handles may be used from
 * different threads, even when they share a value, as long as nobody changes
 * that value concurrently: changing a value (Set functions, container
 * changes) needs your exclusion against all its other users.
 */
#ifndef RYX_OBJECT_H
#define RYX_OBJECT_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#if defined(__GNUC__)
#define RYX_OBJECT_API __attribute__((visibility("default")))
#else
#define RYX_OBJECT_API
#endif

/* C++ callers see that no function throws. */
#ifdef __cplusplus
#define RYX_OBJECT_NOEXCEPT noexcept
#else
#define RYX_OBJECT_NOEXCEPT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The opaque value behind a handle. */
typedef struct RyxObject RyxObject;

typedef enum RyxObjectStatus {
  RyxObjectStatusSuccess = 0,
  RyxObjectStatusFailure = 1,
  RyxObjectStatusInvalidParameter = 2,
  RyxObjectStatusIncorrectType = 3,
  RyxObjectStatusOutOfRange = 4,
  RyxObjectStatusAllocationFailure = 5
} RyxObjectStatus;

/* ==== Any value ========================================================== */
/* These functions accept NULL everywhere and never log. */

/*
 * A new owned handle sharing the value of `object` (borrowed). NULL when
 * `object` is NULL or the handle cannot be allocated.
 */
RYX_OBJECT_API RyxObject* RyxObjectReference(RyxObject const* object) RYX_OBJECT_NOEXCEPT;

/*
 * The number of owners of the value of `object` (borrowed): handles,
 * containers and C++ holders alike. 0 for NULL; -1 for a returned borrowed
 * slot that holds no value. The count may change at once in other threads.
 */
RYX_OBJECT_API int64_t RyxObjectReferenceCount(RyxObject const* object) RYX_OBJECT_NOEXCEPT;

/* Frees `object` (consumed), destroying the value with its last owner. NULL is ignored. */
RYX_OBJECT_API void RyxObjectRelease(RyxObject* object) RYX_OBJECT_NOEXCEPT;

/* The type id of the value of `object` (borrowed); 0, the null id, for NULL. */
RYX_OBJECT_API uint32_t RyxObjectType(RyxObject const* object) RYX_OBJECT_NOEXCEPT;

/*
 * The registered type name of the value of `object` (borrowed), such as
 * "ryx.object.Int32": a constant string, valid while the library is loaded;
 * do not free it. NULL for NULL or for a type without a registered name.
 */
RYX_OBJECT_API char const* RyxObjectTypeName(RyxObject const* object) RYX_OBJECT_NOEXCEPT;

/* A constant message for any status value, in range or not; do not free it. */
RYX_OBJECT_API char const* RyxObjectStatusMessage(int status) RYX_OBJECT_NOEXCEPT;

/* ==== Booleans and numbers =============================================== */
/*
 * Eleven families of six functions, one per kind; the Int32 family stands for
 * all of them. No function converts between kinds: an Int16 value is not an
 * Int32 and a 64-bit value cannot be stored into an Int32.
 *
 *   ...Type()                  The kind's type id, a constant.
 *   ...InstanceOf(object)      Whether `object` (borrowed) holds a value of
 *                              the kind; false for NULL. Silent.
 *   ...Create(value)           A returned owned handle of a new value, or NULL
 *                              when allocation fails (logged).
 *   ...Set(object, value)      Stores `value` into the value of `object`
 *                              (borrowed).
 *   ...Get(object, value)      Writes the value of `object` (borrowed) to
 *                              `*value`.
 *   ...Convert(object, value)  Writes the value of `object` to `*value` and
 *                              consumes `object` on every path once it is not
 *                              NULL, failures included.
 *
 * Set, Get and Convert return RyxObjectStatusSuccess, or (logged)
 * RyxObjectStatusInvalidParameter for a NULL `object` or `value`, and
 * RyxObjectStatusIncorrectType for a value of another kind.
 */
RYX_OBJECT_API uint32_t RyxObjectBoolType(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectBoolInstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectBoolCreate(bool value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectBoolSet(RyxObject* object, bool value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectBoolGet(RyxObject const* object,
                                                bool* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectBoolConvert(RyxObject* object,
                                                    bool* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectInt8Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectInt8InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectInt8Create(int8_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt8Set(RyxObject* object,
                                                int8_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt8Get(RyxObject const* object,
                                                int8_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt8Convert(RyxObject* object,
                                                    int8_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectInt16Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectInt16InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectInt16Create(int16_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt16Set(RyxObject* object,
                                                 int16_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt16Get(RyxObject const* object,
                                                 int16_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt16Convert(RyxObject* object,
                                                     int16_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectInt32Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectInt32InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectInt32Create(int32_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt32Set(RyxObject* object,
                                                 int32_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt32Get(RyxObject const* object,
                                                 int32_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt32Convert(RyxObject* object,
                                                     int32_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectInt64Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectInt64InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectInt64Create(int64_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt64Set(RyxObject* object,
                                                 int64_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt64Get(RyxObject const* object,
                                                 int64_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectInt64Convert(RyxObject* object,
                                                     int64_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectUInt8Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectUInt8InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectUInt8Create(uint8_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt8Set(RyxObject* object,
                                                 uint8_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt8Get(RyxObject const* object,
                                                 uint8_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt8Convert(RyxObject* object,
                                                     uint8_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectUInt16Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectUInt16InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectUInt16Create(uint16_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt16Set(RyxObject* object,
                                                  uint16_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt16Get(RyxObject const* object,
                                                  uint16_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt16Convert(RyxObject* object,
                                                      uint16_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectUInt32Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectUInt32InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectUInt32Create(uint32_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt32Set(RyxObject* object,
                                                  uint32_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt32Get(RyxObject const* object,
                                                  uint32_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt32Convert(RyxObject* object,
                                                      uint32_t* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectUInt64Type(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectUInt64InstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectUInt64Create(uint64_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt64Set(RyxObject* object,
                                                  uint64_t value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt64Get(RyxObject const* object,
                                                  uint64_t* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectUInt64Convert(RyxObject* object,
                                                      uint64_t* value) RYX_OBJECT_NOEXCEPT;

/* Floating point values are stored and read bit for bit, NaNs included. */
RYX_OBJECT_API uint32_t RyxObjectFloatType(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectFloatInstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectFloatCreate(float value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectFloatSet(RyxObject* object,
                                                 float value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectFloatGet(RyxObject const* object,
                                                 float* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectFloatConvert(RyxObject* object,
                                                     float* value) RYX_OBJECT_NOEXCEPT;

RYX_OBJECT_API uint32_t RyxObjectDoubleType(void) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API bool RyxObjectDoubleInstanceOf(RyxObject const* object) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectDoubleCreate(double value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectDoubleSet(RyxObject* object,
                                                  double value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectDoubleGet(RyxObject const* object,
                                                  double* value) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObjectStatus RyxObjectDoubleConvert(RyxObject* object,
                                                      double* value) RYX_OBJECT_NOEXCEPT;

/* ==== Arrays ============================================================= */
/*
 * An array holds handles' values in order, checked against its element schema
 * (an array made here accepts any value). Unless stated otherwise, a NULL
 * array handle is logged and answered RyxObjectStatusInvalidParameter (0 or
 * false for value results), and a handle that is not an array is logged and
 * answered RyxObjectStatusIncorrectType (0 or false).
 */

/* The array kind's type id, a constant. */
RYX_OBJECT_API uint32_t RyxObjectArrayType(void) RYX_OBJECT_NOEXCEPT;

/* Whether `object` (borrowed) is an array; false for NULL. Silent. */
RYX_OBJECT_API bool RyxObjectArrayInstanceOf(RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * A returned owned handle of a new array of the values of the handles
 * `first`, ... up to a terminating NULL (NULL alone gives an empty array).
 * Each handle is consumed as it is read, so pass a value twice only through
 * two handles (RyxObjectReference). On failure, logged, NULL: the handles
 * read so far are consumed, the rest untouched. The list is not marked as
 * sentinel-terminated for the compiler, since NULL alone is a valid call.
 */
RYX_OBJECT_API RyxObject* RyxObjectArrayCreateObjects(RyxObject* first,
                                                      ...) RYX_OBJECT_NOEXCEPT;

/* The number of elements of `array` (borrowed); 0 on failure. */
RYX_OBJECT_API size_t RyxObjectArraySize(RyxObject* array) RYX_OBJECT_NOEXCEPT;

/* How many elements `array` (borrowed) holds without growing; 0 on failure. */
RYX_OBJECT_API size_t RyxObjectArrayCapacity(RyxObject* array) RYX_OBJECT_NOEXCEPT;

/* Whether `array` (borrowed) has no elements; false on failure. */
RYX_OBJECT_API bool RyxObjectArrayEmpty(RyxObject* array) RYX_OBJECT_NOEXCEPT;

/*
 * Whether the very value of `object` (borrowed) is an element of `array`
 * (borrowed): identity, not equality. A NULL `object` gives false silently.
 */
RYX_OBJECT_API bool RyxObjectArrayContains(RyxObject* array, RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * A returned borrowed handle of the element at `index` of `array` (borrowed),
 * valid until the array changes. NULL, silently, for a NULL or non-array
 * handle or an index past the end.
 */
RYX_OBJECT_API RyxObject* RyxObjectArrayPeek(RyxObject* array, size_t index) RYX_OBJECT_NOEXCEPT;

/*
 * Grows the storage of `array` (borrowed) to at least `capacity` elements;
 * never shrinks. RyxObjectStatusFailure (logged) when that fails.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayReserve(RyxObject* array,
                                                     size_t capacity) RYX_OBJECT_NOEXCEPT;

/* Shrinks the storage of `array` (borrowed) to its size, where it can. */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayShrink(RyxObject* array) RYX_OBJECT_NOEXCEPT;

/* Removes every element of `array` (borrowed); the storage stays. */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayClear(RyxObject* array) RYX_OBJECT_NOEXCEPT;

/*
 * Removes the element at `index` of `array` (borrowed). An index past the end
 * is RyxObjectStatusFailure (logged), not RyxObjectStatusOutOfRange.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayErase(RyxObject* array,
                                                   size_t index) RYX_OBJECT_NOEXCEPT;

/*
 * The four adding functions take `object` over: it is consumed once `array`
 * (borrowed) has passed its checks, whatever follows, and untouched when the
 * result is RyxObjectStatusInvalidParameter or RyxObjectStatusIncorrectType.
 * An index past the end is RyxObjectStatusOutOfRange; a NULL `object` or a
 * value the schema refuses is RyxObjectStatusFailure; both logged, the array
 * unchanged.
 */
/* Replaces the element at `index`. */
RYX_OBJECT_API RyxObjectStatus RyxObjectArraySetObject(RyxObject* array, size_t index,
                                                       RyxObject* object) RYX_OBJECT_NOEXCEPT;
/* Inserts before `index`; `index` equal to the size appends. */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayInsertObject(RyxObject* array, size_t index,
                                                          RyxObject* object) RYX_OBJECT_NOEXCEPT;
/* Adds after the last element. */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayAppendObject(RyxObject* array,
                                                          RyxObject* object) RYX_OBJECT_NOEXCEPT;
/* Adds before the first element. */
RYX_OBJECT_API RyxObjectStatus RyxObjectArrayPrependObject(RyxObject* array,
                                                           RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * Removes the element at `index` of `array` (borrowed) and returns it as a
 * returned owned handle. NULL, silently, for a NULL or non-array handle or an
 * index past the end; NULL, logged, when the handle cannot be made (the
 * element is then gone).
 */
RYX_OBJECT_API RyxObject* RyxObjectArrayPopObject(RyxObject* array,
                                                  size_t index) RYX_OBJECT_NOEXCEPT;

/*
 * Remove the last (first) element of `array` (borrowed) and return it as a
 * returned owned handle. NULL, silently, for a NULL or non-array handle;
 * NULL, logged, for an empty array.
 */
RYX_OBJECT_API RyxObject* RyxObjectArrayPopBackObject(RyxObject* array) RYX_OBJECT_NOEXCEPT;
RYX_OBJECT_API RyxObject* RyxObjectArrayPopFrontObject(RyxObject* array) RYX_OBJECT_NOEXCEPT;

/* ==== Dictionaries ======================================================= */
/*
 * A dictionary maps keys, C strings copied on the way in, to values. Checks
 * and results follow the arrays: a NULL dictionary handle is logged and
 * answered RyxObjectStatusInvalidParameter (0 or false), a handle that is not
 * a dictionary RyxObjectStatusIncorrectType (0 or false). Keys are borrowed.
 */

/* The dictionary kind's type id, a constant. */
RYX_OBJECT_API uint32_t RyxObjectDictType(void) RYX_OBJECT_NOEXCEPT;

/* Whether `object` (borrowed) is a dictionary; false for NULL. Silent. */
RYX_OBJECT_API bool RyxObjectDictInstanceOf(RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * A returned owned handle of a new dictionary of the pairs `key`, handle,
 * key, handle, ... up to a NULL key (NULL alone gives an empty dictionary).
 * Each handle is consumed as it is read. On failure, logged, NULL: a NULL
 * handle after a key, a repeated key (whose handle is consumed too); the
 * handles read so far are consumed, the rest untouched.
 */
RYX_OBJECT_API RyxObject* RyxObjectDictCreatePairs(char const* key,
                                                   ...) RYX_OBJECT_NOEXCEPT;

/* The number of entries of `dictionary` (borrowed); 0 on failure. */
RYX_OBJECT_API size_t RyxObjectDictSize(RyxObject* dictionary) RYX_OBJECT_NOEXCEPT;

/* Whether `dictionary` (borrowed) has no entries; false on failure. */
RYX_OBJECT_API bool RyxObjectDictEmpty(RyxObject* dictionary) RYX_OBJECT_NOEXCEPT;

/*
 * Whether `dictionary` (borrowed) has an entry under `key`; a NULL key gives
 * false silently, any failure (such as no memory for the key) false, logged.
 */
RYX_OBJECT_API bool RyxObjectDictContainsKey(RyxObject* dictionary,
                                             char const* key) RYX_OBJECT_NOEXCEPT;

/*
 * Whether the very value of `object` (borrowed) is the value of an entry of
 * `dictionary` (borrowed); a NULL `object` gives false silently.
 */
RYX_OBJECT_API bool RyxObjectDictContainsObject(RyxObject* dictionary,
                                                RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * A returned borrowed handle of the value under `key` in `dictionary`
 * (borrowed). It stays valid until that entry is removed or the dictionary
 * destroyed, and always shows the entry's current value. NULL, silently, for
 * a NULL or non-dictionary handle or a missing key; NULL, logged, for a NULL
 * key.
 */
RYX_OBJECT_API RyxObject* RyxObjectDictPeek(RyxObject* dictionary,
                                            char const* key) RYX_OBJECT_NOEXCEPT;

/* Makes room for `capacity` entries in `dictionary` (borrowed) without rehashing. */
RYX_OBJECT_API RyxObjectStatus RyxObjectDictReserve(RyxObject* dictionary,
                                                    size_t capacity) RYX_OBJECT_NOEXCEPT;

/* Removes every entry of `dictionary` (borrowed). */
RYX_OBJECT_API RyxObjectStatus RyxObjectDictClear(RyxObject* dictionary) RYX_OBJECT_NOEXCEPT;

/* Removes the entry under `key`; a missing or NULL key is RyxObjectStatusFailure (logged). */
RYX_OBJECT_API RyxObjectStatus RyxObjectDictErase(RyxObject* dictionary,
                                                  char const* key) RYX_OBJECT_NOEXCEPT;

/*
 * Both take `object` over once `dictionary` (borrowed) has passed its checks,
 * whatever follows. A NULL key or `object` is RyxObjectStatusFailure (logged).
 */
/* Stores the value under `key`, adding or replacing the entry; no schema check. */
RYX_OBJECT_API RyxObjectStatus RyxObjectDictSetObject(RyxObject* dictionary, char const* key,
                                                      RyxObject* object) RYX_OBJECT_NOEXCEPT;
/*
 * Adds an entry under a new `key`, checked against the schema. An existing
 * key or a refused value is RyxObjectStatusFailure (logged).
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectDictInsertObject(RyxObject* dictionary, char const* key,
                                                         RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * Removes the entry under `key` of `dictionary` (borrowed) and returns its
 * value as a returned owned handle. NULL, silently, for a NULL or
 * non-dictionary handle; NULL, logged, for a NULL or missing key.
 */
RYX_OBJECT_API RyxObject* RyxObjectDictPopObject(RyxObject* dictionary,
                                                 char const* key) RYX_OBJECT_NOEXCEPT;

/* ==== Enumerators ======================================================== */
/*
 * Enumerators of the C interface's one enumeration, with 16-bit values. An
 * enumerator of another enumeration (made through C++ or loaded) answers
 * RyxObjectStatusFailure (logged).
 */

/* The enumerator kind's type id, a constant. */
RYX_OBJECT_API uint32_t RyxObjectEnumType(void) RYX_OBJECT_NOEXCEPT;

/* Whether `object` (borrowed) is an enumerator; false for NULL. Silent. */
RYX_OBJECT_API bool RyxObjectEnumInstanceOf(RyxObject* object) RYX_OBJECT_NOEXCEPT;

/* A returned owned handle of a new enumerator holding `value`, or NULL (logged). */
RYX_OBJECT_API RyxObject* RyxObjectEnumCreate(uint16_t value) RYX_OBJECT_NOEXCEPT;

/* Stores `value` into the enumerator of `object` (borrowed). */
RYX_OBJECT_API RyxObjectStatus RyxObjectEnumSetValue(RyxObject* object,
                                                     uint16_t value) RYX_OBJECT_NOEXCEPT;

/*
 * Writes the value of the enumerator of `object` (borrowed) to `*value`.
 * Unlike the other functions it tests `value` before `object`.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectEnumGetValue(RyxObject* object,
                                                     uint16_t* value) RYX_OBJECT_NOEXCEPT;

/*
 * Writes the value of the enumerator of `object` to `*value` and consumes
 * `object` on every path once it is not NULL.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectEnumConvertValue(RyxObject* object,
                                                         uint16_t* value) RYX_OBJECT_NOEXCEPT;

/* ==== Strings ============================================================ */
/*
 * Strings cross as C strings: the characters up to the first NUL. Only a
 * string value is accepted where a string is expected; anything else is
 * RyxObjectStatusIncorrectType (logged). NULL parameters are
 * RyxObjectStatusInvalidParameter (logged).
 */

/* The string kind's type id, a constant. */
RYX_OBJECT_API uint32_t RyxObjectStringType(void) RYX_OBJECT_NOEXCEPT;

/* Whether `object` (borrowed) is a string value; false for NULL. Silent. */
RYX_OBJECT_API bool RyxObjectStringInstanceOf(RyxObject* object) RYX_OBJECT_NOEXCEPT;

/*
 * A returned owned handle of a new string value holding a copy of `value`
 * (borrowed). NULL (logged) when `value` is NULL or allocation fails.
 */
RYX_OBJECT_API RyxObject* RyxObjectStringCreate(char const* value) RYX_OBJECT_NOEXCEPT;

/*
 * Points `*value` at the characters of the string value of `object`
 * (borrowed): the value's own NUL-terminated storage, not a copy. The pointer
 * is borrowed: valid while the value lives and is not changed; do not free or
 * write through it.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectStringGet(RyxObject* object,
                                                  char const** value) RYX_OBJECT_NOEXCEPT;

/*
 * Replaces the characters of the string value of `object` (borrowed) by a
 * copy of `value` (borrowed). RyxObjectStatusAllocationFailure (silent) when
 * the copy cannot be allocated; the string is then unchanged. Pointers given
 * out earlier by RyxObjectStringGet for this value become invalid.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectStringSet(RyxObject* object,
                                                  char const* value) RYX_OBJECT_NOEXCEPT;

/*
 * Copies the first min(size, length) characters of the string value of
 * `object` into `buffer`, NULs inside the string included, and consumes
 * `object` on every path once it is not NULL. No terminator is written and a
 * longer string is cut silently: pass a zeroed buffer of length + 1 bytes for
 * a C string. Bytes after the copied ones are left as they were.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectStringConvertBuffer(RyxObject* object, char* buffer,
                                                            size_t size) RYX_OBJECT_NOEXCEPT;

/*
 * Sets `*value` to a new malloc'ed copy of all the characters of the string
 * value of `object` plus a terminating NUL, and consumes `object` on every
 * path once it is not NULL. The block is owned by the caller: free it with
 * free(). RyxObjectStatusAllocationFailure (silent) when malloc fails; `*value`
 * is then not written.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectStringConvertAllocate(RyxObject* object,
                                                              char** value) RYX_OBJECT_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* RYX_OBJECT_H */
