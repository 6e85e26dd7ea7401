/* Built as C against the installed library: checks that the C interface and
 * the logging sink are reachable from outside the source tree. */
#include <ryx/logging.h>
#include <ryx/object.h>

#include <stdio.h>
#include <string.h>

static int messages;

static void Count(char const* logger, int level, char const* message, void* context) {
  (void)logger;
  (void)level;
  (void)message;
  (void)context;
  ++messages;
}

int main(void) {
  RyxObject* const value = RyxObjectInt32Create(42);
  int32_t read = 0;
  RyxLoggingSetSink(Count, NULL);
  if (RyxObjectInt32Convert(value, &read) != RyxObjectStatusSuccess || read != 42 ||
      RyxObjectInt32Get(NULL, &read) != RyxObjectStatusInvalidParameter || messages != 1) {
    fprintf(stderr, "consumer_c: the installed C interface misbehaves\n");
    return 1;
  }
  RyxLoggingSetSink(NULL, NULL);
  printf("consumer_c: %s\n", RyxObjectStatusMessage(RyxObjectStatusSuccess));
  return 0;
}
