#include "report.h"

#include <ryx/object/serialize.h>

#include <stdio.h>
#include <stdlib.h>

int ReportTask(RyxObject const* task) {
  char* json = NULL;
  size_t size = 0;
  RyxObject* copy = NULL;
  int status = 1;
  printf("C sees a %s (type id %u)\n", RyxObjectTypeName(task), (unsigned)RyxObjectType(task));
  if (RyxObjectSave(task, RyxObjectFormJson, &json, &size) != RyxObjectStatusSuccess) {
    return 1;
  }
  /* The document loads back into a new value of the same kind. */
  if (RyxObjectLoad(RyxObjectFormJson, json, size, &copy) == RyxObjectStatusSuccess &&
      copy != NULL && RyxObjectType(copy) == RyxObjectType(task)) {
    printf("C saved %zu bytes of JSON and loaded them back\n", size);
    status = 0;
  }
  RyxObjectRelease(copy);
  free(json);
  return status;
}
