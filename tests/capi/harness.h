/*
 * A small test harness for the C interface, written in C so that the tests
 * exercise the header and the library exactly as a C program does.
 *
 * Every failure message is captured through the logging sink: CHECK_LOGGED
 * asserts that exactly one message was logged since the last check and that
 * it reads as expected; CHECK_SILENT asserts that none was.
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

/* Test tables of the test files. */
extern TestCase const GenericTests[];
extern size_t const GenericTestCount;
extern TestCase const PrimitiveTests[];
extern size_t const PrimitiveTestCount;
extern TestCase const StringTests[];
extern size_t const StringTestCount;
extern TestCase const ArrayTests[];
extern size_t const ArrayTestCount;
extern TestCase const DictionaryTests[];
extern size_t const DictionaryTestCount;
extern TestCase const EnumTests[];
extern size_t const EnumTestCount;

#endif
