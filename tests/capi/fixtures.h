// Values a C program cannot make through the C interface, made on the C++ side
// for the tests. Each returns an owned handle.
#ifndef RYX_TESTS_CAPI_FIXTURES_H
#define RYX_TESTS_CAPI_FIXTURES_H

#include <ryx/object.h>

#ifdef __cplusplus
extern "C" {
#endif

// A string value of three characters, the middle one NUL: "a\0b".
RyxObject* MakeStringWithNul(void);
// A value whose type id has no registered name.
RyxObject* MakeUnregisteredValue(void);
// A handle whose shared pointer is empty, like a slot that loading left empty.
RyxObject* MakeEmptyHandle(void);
// An empty container of the type `container` whose elements must have the type `element`.
RyxObject* MakeRequiring(uint32_t container, uint32_t element);
// An enumerator as the registry makes it: of no enumeration yet.
RyxObject* MakeDefaultEnum(void);

// Makes the n-th C++ allocation from now on this thread fail with
// std::bad_alloc (1: the next one); the others succeed. 0 cancels.
void FailNthAllocation(int n);

#ifdef __cplusplus
}
#endif

#endif
