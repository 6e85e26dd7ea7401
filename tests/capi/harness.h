// A small test harness for the C interface, written in C so that the tests use
// the header and the library exactly as a C program does. Every message the
// library logs reaches the harness; a test fails if it leaves one unchecked.
#ifndef RYX_TESTS_CAPI_HARNESS_H
#define RYX_TESTS_CAPI_HARNESS_H

#include <ryx/object.h>

#include <stddef.h>

typedef struct TestCase {
  char const* name;
  void (*run)(void);
} TestCase;

void CheckFailed(char const* file, int line, char const* text);
// Checks that exactly one message was logged since the last check, reading `expected`.
void CheckLoggedAt(char const* file, int line, char const* expected);

#define CHECK(condition)                           \
  do {                                             \
    if (!(condition)) {                            \
      CheckFailed(__FILE__, __LINE__, #condition); \
    }                                              \
  } while (0)
#define CHECK_OK(call) CHECK((call) == RyxObjectStatusSuccess)
#define CHECK_REPORTED(condition, message)        \
  do {                                            \
    CHECK(condition);                             \
    CheckLoggedAt(__FILE__, __LINE__, (message)); \
  } while (0)

// The failures every function reports alike, each message starting with the
// function's own name: a NULL parameter, a value of another kind, and any other
// failure, "<function>: <action>: <reason>", answering `result`.
#define CHECK_NULL(parameter, function, ...)                               \
  CHECK_REPORTED(function(__VA_ARGS__) == RyxObjectStatusInvalidParameter, \
                 #function ": the " parameter " parameter was NULL")
#define CHECK_NOT_A(expected, actual, function, ...)                    \
  CHECK_REPORTED(function(__VA_ARGS__) == RyxObjectStatusIncorrectType, \
                 #function ": the object parameter was not a " expected ": " actual)
#define CHECK_FAILS(result, reason, function, ...) \
  CHECK_REPORTED(function(__VA_ARGS__) == (result), #function ": " reason)

// The value of an Int32 handle, checking that it could be read.
int32_t Int32Of(RyxObject const* handle);

// A group's table of tests, each named after its function.
#define TEST_CASE(function) \
  { #function, function }
#define TESTS(group, ...) TestCase const group##Tests[] = {__VA_ARGS__, {NULL, NULL}}
extern TestCase const GenericTests[], PrimitiveTests[], StringTests[], ArrayTests[],
    DictionaryTests[], EnumTests[], SerializeTests[];

#endif
