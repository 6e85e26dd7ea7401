/* <ryx/object.h>, <ryx/object/serialize.h> and <ryx/logging.h> must compile
 * as strict C99. */
#include <ryx/logging.h>
#include <ryx/object.h>
#include <ryx/object/serialize.h>

/* The variadic creators keep their NULL-terminated form. */
RyxObject* HeaderCheckEmptyArray(void);
RyxObject* HeaderCheckEmptyArray(void) { return RyxObjectArrayCreateObjects(NULL, NULL); }
