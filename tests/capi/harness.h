/*
 * A small test harness for the C interface, written in C so that the tests
 * exercise the header and the library exactly as a C program does.
 *
 * Every failure message is captured through the logging sink: CHECK_LOGGED
 * asserts that exactly one message was logged since the last check and that
 * it reads as expected; CHECK_SILENT asserts that none was, as the runner
 * does after every test.
 */
#ifndef RYX_TESTS_CAPI_HARNESS_H
#define RYX_TESTS_CAPI_HARNESS_H

#include <ryx/object.h>

#include <stddef.h>

typedef struct TestCase {
  char const* name;
  void (*run)(void);
} TestCase;

void CheckFailed(char const* file, int line, char const* text);
void CheckLoggedAt(char const* file, int line, char const* expected);
void CheckSilentAt(char const* file, int line);
void ForgetLogs(void);

#define CHECK(condition)                           \
  do {                                             \
    if (!(condition)) {                            \
      CheckFailed(__FILE__, __LINE__, #condition); \
    }                                              \
  } while (0)
#define CHECK_STATUS(expected, actual) CHECK((actual) == (expected))
#define CHECK_LOGGED(expected) CheckLoggedAt(__FILE__, __LINE__, (expected))
#define CHECK_SILENT() CheckSilentAt(__FILE__, __LINE__)
#define CHECK_REPORTED(condition, message) \
  do {                                     \
    CHECK(condition);                      \
    CHECK_LOGGED(message);                 \
  } while (0)

/* The two failures every function reports alike, each message starting with
 * the function's own name: a NULL parameter answers
 * RyxObjectStatusInvalidParameter, a value of another kind
 * RyxObjectStatusIncorrectType. */
#define CHECK_NULL(parameter, function, ...)                               \
  CHECK_REPORTED(function(__VA_ARGS__) == RyxObjectStatusInvalidParameter, \
                 #function ": the " parameter " parameter was NULL")
#define CHECK_NOT_A(expected, actual, function, ...)                    \
  CHECK_REPORTED(function(__VA_ARGS__) == RyxObjectStatusIncorrectType, \
                 #function ": the object parameter was not a " expected ": " actual)
/* Any other failure: `result` and "<function>: <action>: <reason>". */
#define CHECK_FAILS(result, reason, function, ...) \
  CHECK_REPORTED(function(__VA_ARGS__) == (result), #function ": " reason)

/* The value of an Int32 handle, checking that it could be read. */
int32_t Int32Of(RyxObject const* handle);

/* An entry of a test table, named after its function. */
#define TEST_CASE(function) \
  { #function, function }

/* The test tables of the test files. */
#define DECLARE_TESTS(Group)            \
  extern TestCase const Group##Tests[]; \
  extern size_t const Group##TestCount
DECLARE_TESTS(Generic);
DECLARE_TESTS(Primitive);
DECLARE_TESTS(String);
DECLARE_TESTS(Array);
DECLARE_TESTS(Dictionary);
DECLARE_TESTS(Enum);
DECLARE_TESTS(Serialize);

#endif
