/*
 * The object model from C: build a nested value through handles, read it
 * back, save it as JSON and binary and load it again, show one failure and
 * the log line it writes, and release everything.
 */
#include <ryx/logging.h>
#include <ryx/object.h>
#include <ryx/object/serialize.h>

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

/* Prints each failure message where the demonstration can show it. */
static void PrintLogLine(char const* logger, int level, char const* message, void* context) {
  (void)context;
  printf("  log [%s, level %d]: %s\n", logger, level, message);
}

int main(void) {
  RyxObject* sizes;
  RyxObject* record;
  RyxObject* borrowed;
  RyxObject* keep;
  RyxObject* loaded;
  char* document;
  size_t documentSize;
  char const* name = NULL;
  int32_t size = 0;
  uint16_t colour = 0;
  size_t i;
  RyxObjectStatus status;

  RyxLoggingSetSink(PrintLogLine, NULL);

  /* Every handle passed to a creator is consumed by it: no release needed. */
  puts("== building {\"name\": \"widget\", \"sizes\": [1, 2, 3], \"colour\": <enum 2>}");
  sizes = RyxObjectArrayCreateObjects(RyxObjectInt32Create(1), RyxObjectInt32Create(2),
                                      RyxObjectInt32Create(3), NULL);
  record = RyxObjectDictCreatePairs("name", RyxObjectStringCreate("widget"), "sizes", sizes,
                                    "colour", RyxObjectEnumCreate(2), NULL);
  printf("record is a %s with %zu entries\n", RyxObjectTypeName(record), RyxObjectDictSize(record));

  puts("== reading it back through borrowed handles");
  RyxObjectStringGet(RyxObjectDictPeek(record, "name"), &name);
  printf("name: %s\n", name);
  borrowed = RyxObjectDictPeek(record, "sizes");
  printf("sizes:");
  for (i = 0; i < RyxObjectArraySize(borrowed); ++i) {
    RyxObjectInt32Get(RyxObjectArrayPeek(borrowed, i), &size);
    printf(" %d", (int)size);
  }
  printf("\n");
  RyxObjectEnumGetValue(RyxObjectDictPeek(record, "colour"), &colour);
  printf("colour: %u\n", (unsigned)colour);

  puts("== saving it as JSON and as binary, and loading both back");
  RyxObjectSave(record, RyxObjectFormJson, &document, &documentSize);
  RyxObjectLoad(RyxObjectFormJson, document, documentSize, &loaded);
  printf("JSON, %zu bytes; loaded back, a %s with %zu entries\n", documentSize,
         RyxObjectTypeName(loaded), RyxObjectDictSize(loaded));
  free(document);
  RyxObjectRelease(loaded);
  RyxObjectSave(record, RyxObjectFormBinary, &document, &documentSize);
  RyxObjectLoad(RyxObjectFormBinary, document, documentSize, &loaded);
  RyxObjectStringGet(RyxObjectDictPeek(loaded, "name"), &name);
  printf("binary, %zu bytes; loaded back, its name is %s\n", documentSize, name);
  free(document);
  RyxObjectRelease(loaded);

  puts("== a failure: reading the name as a 32-bit integer");
  status = RyxObjectInt32Get(RyxObjectDictPeek(record, "name"), &size);
  printf("status %d: %s\n", (int)status, RyxObjectStatusMessage(status));

  puts("== keeping one value beyond the record");
  keep = RyxObjectReference(RyxObjectDictPeek(record, "sizes"));
  RyxObjectRelease(record);
  printf("the sizes array survives with %zu elements and %ld owner(s)\n", RyxObjectArraySize(keep),
         (long)RyxObjectReferenceCount(keep));
  RyxObjectRelease(keep);

  RyxLoggingSetSink(NULL, NULL);
  return 0;
}
