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
  if (logCount != 1 || strcmp(lastLog, expected) != 0) {
    fprintf(stderr, "%s:%d: %s: expected one message \"%s\"\n%*s got %d, the last \"%s\"\n", file,
            line, currentTest, expected, (int)strlen(file) + 8, "", logCount, lastLog);
    ++failures;
  }
  logCount = 0;
  lastLog[0] = '\0';
}

int32_t Int32Of(RyxObject const* handle) {
  int32_t value = -1;
  CHECK_OK(RyxObjectInt32Get(handle, &value));
  return value;
}

// Runs every test, or only the one named by the first argument.
int main(int argc, char** argv) {
  TestCase const* const groups[] = {GenericTests,    PrimitiveTests, StringTests,   ArrayTests,
                                    DictionaryTests, EnumTests,      SerializeTests};
  size_t i;
  TestCase const* test;
  RyxLoggingSetSink(Sink, NULL);
  for (i = 0; i < sizeof groups / sizeof groups[0]; ++i) {
    for (test = groups[i]; test->name != NULL; ++test) {
      int const before = failures;
      if (argc > 1 && strcmp(argv[1], test->name) != 0) {
        continue;
      }
      currentTest = test->name;
      logCount = 0;
      test->run();
      if (logCount != 0) {
        fprintf(stderr, "%s: message left unchecked: \"%s\"\n", currentTest, lastLog);
        ++failures;
      }
      printf("[%s] %s\n", failures == before ? "  OK  " : "FAILED", currentTest);
    }
  }
  RyxLoggingSetSink(NULL, NULL);
  if (failures != 0) {
    fprintf(stderr, "%d check(s) failed\n", failures);
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
