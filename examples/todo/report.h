/* The example's C side: what C code can do with a value of a kind it knows
   nothing about, through its handle. */
#ifndef TODO_REPORT_H
#define TODO_REPORT_H

#include <ryx/object.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Prints the value's type and its JSON document; returns 0 on success. The
   handle is borrowed. */
int ReportTask(RyxObject const* task);

#ifdef __cplusplus
}
#endif

#endif
