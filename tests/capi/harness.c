#include "harness.h"

#include <ryx/logging.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int failures;
static char const* currentTest;

static int logCount;
static char lastLog[1024];

static void Sink(char const* logger, int level, char const* message, void* context) {
  (void)context;
  if (strcmp(logger, "ryx.object") != 0 || level != 16) {
    fprintf(stderr, "%s: message from logger '%s' at level %d\n", currentTest, logger, level);
    ++failures;
  }
  ++logCount;
  snprintf(lastLog, sizeof lastLog, "%s", message);
}

void CheckFailed(char const* file, int line, char const* text) {
  fprintf(stderr, "%s:%d: %s: failed: %s\n", file, line, currentTest, text);
  ++failures;
}

void CheckLoggedAt(char const* file, int line, char const* expected) {
  if (logCount != 1) {
    fprintf(stderr, "%s:%d: %s: expected one message \"%s\", got %d (last \"%s\")\n", file, line,
            currentTest, expected, logCount, logCount > 0 ? lastLog : "");
    ++failures;
  } else if (strcmp(lastLog, expected) != 0) {
    fprintf(stderr, "%s:%d: %s: expected message \"%s\"\n%*s got \"%s\"\n", file, line, currentTest,
            expected, (int)strlen(file) + 8, "", lastLog);
    ++failures;
  }
  ForgetLogs();
}

void CheckSilentAt(char const* file, int line) {
  if (logCount != 0) {
    fprintf(stderr, "%s:%d: %s: expected no message, got %d (last \"%s\")\n", file, line,
            currentTest, logCount, lastLog);
    ++failures;
  }
  ForgetLogs();
}

int32_t Int32Of(RyxObject const* handle) {
  int32_t value = -1;
  CHECK_STATUS(RyxObjectStatusSuccess, RyxObjectInt32Get(handle, &value));
  return value;
}

void ForgetLogs(void) {
  logCount = 0;
  lastLog[0] = '\0';
}

static void RunAll(TestCase const* tests, size_t count, char const* only) {
  size_t i;
  for (i = 0; i < count; ++i) {
    int const before = failures;
    if (only != NULL && strcmp(only, tests[i].name) != 0) {
      continue;
    }
    currentTest = tests[i].name;
    ForgetLogs();
    tests[i].run();
    CheckSilentAt(tests[i].name, 0); /* no message left unchecked */
    printf("[%s] %s\n", failures == before ? "  OK  " : "FAILED", tests[i].name);
  }
}

/* Runs every test, or only the one named by the first argument. */
int main(int argc, char** argv) {
  char const* const only = argc > 1 ? argv[1] : NULL;
  RyxLoggingSetSink(Sink, NULL);
  RunAll(GenericTests, GenericTestCount, only);
  RunAll(PrimitiveTests, PrimitiveTestCount, only);
  RunAll(StringTests, StringTestCount, only);
  RunAll(ArrayTests, ArrayTestCount, only);
  RunAll(DictionaryTests, DictionaryTestCount, only);
  RunAll(EnumTests, EnumTestCount, only);
  RunAll(SerializeTests, SerializeTestCount, only);
  RyxLoggingSetSink(NULL, NULL);
  if (failures != 0) {
    fprintf(stderr, "%d check(s) failed\n", failures);
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
