/* Built as C against the installed library: checks that the C interface,
 * saving and rendering (whose entry point comes from a static library) and the
 * logging sink are reachable from outside the source tree. */
#include <ryx/logging.h>
#include <ryx/object.h>
#include <ryx/object/serialize.h>

#include <stdio.h>
#include <stdlib.h>
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
  RyxObject* loaded = NULL;
  char* json = NULL;
  char* text = NULL;
  size_t size = 0;
  int32_t read = 0;
  RyxLoggingSetSink(Count, NULL);
  if (RyxObjectSave(value, RyxObjectFormJson, &json, &size) != RyxObjectStatusSuccess ||
      RyxObjectLoad(RyxObjectFormJson, json, size, &loaded) != RyxObjectStatusSuccess ||
      RyxObjectRender("{{value}}", loaded, &text, &size) != RyxObjectStatusSuccess ||
      strcmp(text, "42") != 0) {
    fprintf(stderr, "consumer_c: the installed library does not save, load or render\n");
    return 1;
  }
  free(json);
  free(text);
  RyxObjectRelease(loaded);
  if (RyxObjectInt32Convert(value, &read) != RyxObjectStatusSuccess || read != 42 ||
      RyxObjectInt32Get(NULL, &read) != RyxObjectStatusInvalidParameter || messages != 1) {
    fprintf(stderr, "consumer_c: the installed C interface misbehaves\n");
    return 1;
  }
  RyxLoggingSetSink(NULL, NULL);
  printf("consumer_c: %s\n", RyxObjectStatusMessage(RyxObjectStatusSuccess));
  return 0;
}
