/*
 * Saving, loading and rendering values from C.
 *
 * A value is saved into a document of one of three forms: JSON, XML, or the
 * portable binary form (an endianness byte, then the value; it loads on a
 * machine of either byte order); or as plain JSON, the JSON anyone writes,
 * without type names (see <ryx/object/serialize/plain_json.hpp> for how each
 * kind maps). Documents are handed out as blocks
 * allocated with malloc that the caller frees with free(); the text forms
 * carry a terminating NUL after their `*size` bytes, so they can be used as C
 * strings.
 *
 * Handles, ownership and errors follow <ryx/object.h>: every failure is
 * answered with a status and exactly one message to the logger "ryx.object",
 * such as "RyxObjectLoad: the data parameter was NULL". Pointer parameters
 * are checked first, in their order, then the form. On failure no output is
 * written. The statuses are:
 *
 *   RyxObjectStatusInvalidParameter   a NULL pointer parameter, a form that
 *                                     is none of RyxObjectForm's values, or
 *                                     a schema text that is not a schema
 *   RyxObjectStatusFailure            a document that does not load, a value
 *                                     that cannot be saved, a template that
 *                                     does not render; the message carries
 *                                     the reason
 *   RyxObjectStatusAllocationFailure  memory ran out
 *
 * Any bytes may be loaded: a document either loads or fails, whatever it
 * holds.
 */
#ifndef RYX_OBJECT_SERIALIZE_H
#define RYX_OBJECT_SERIALIZE_H

#include <ryx/object.h>

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef enum RyxObjectForm {
  RyxObjectFormJson = 0,
  RyxObjectFormXml = 1,
  RyxObjectFormBinary = 2,
  /* Plain JSON, indented by four spaces; it loads as the JSON decides. */
  RyxObjectFormPlainJson = 3,
  /* Plain JSON without any whitespace; loads as RyxObjectFormPlainJson. */
  RyxObjectFormPlainJsonCompact = 4
} RyxObjectForm;

/*
 * Saves the value of `object` (borrowed) as a document of `form`, into a new
 * block that `*data` is set to and whose length in bytes, without the
 * terminator of the text forms, `*size` is set to. The block is owned by the
 * caller: free it with free(). A NULL `object` saves the null record, which
 * loads back as NULL.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectSave(RyxObject const* object, RyxObjectForm form,
                                             char** data, size_t* size) RYX_OBJECT_NOEXCEPT;

/*
 * Loads the document of `form` held in the `size` bytes at `data` (borrowed;
 * no terminator needed) and sets `*object` to a returned owned handle of the
 * value. `*object` is set to NULL, with RyxObjectStatusSuccess, for the null
 * record and for a JSON or XML document naming a type that is not registered
 * (a binary document cannot be read past such a type, and fails), and for
 * the plain JSON text null.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectLoad(RyxObjectForm form, char const* data, size_t size,
                                             RyxObject** object) RYX_OBJECT_NOEXCEPT;

/*
 * Loads the plain JSON text held in the `size` bytes at `data` (borrowed; no
 * terminator needed) under the schema written as text in `schema` (borrowed,
 * NUL-terminated; NULL for none), and sets `*object` to a returned owned
 * handle of the value, or to NULL for the text null read without a schema.
 * With a schema the value conforms to it or the load fails. The schema is
 * written as ryx-object prints schemas: "ryx.object.Array<ryx.object.Int32>",
 * "any<Int32,String>" (see FormatRequired in <ryx/object/required_text.hpp>);
 * text that is not a schema answers RyxObjectStatusInvalidParameter.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectLoadPlainJson(char const* data, size_t size,
                                                      char const* schema,
                                                      RyxObject** object) RYX_OBJECT_NOEXCEPT;

/*
 * Renders the mustache template `mustache` (borrowed, NUL-terminated) over
 * the template data of the value of `object` (borrowed; NULL renders over the
 * null record) into a new NUL-terminated block that `*text` is set to, its
 * length without the terminator in `*size`. The block is owned by the caller:
 * free it with free(). Each value's node holds "typename" and its members as
 * in the JSON form, numbers as decimal text, and the type flags, so that
 * {{#is.typename.ryx.object.Int32}}...{{/is.typename.ryx.object.Int32}} is
 * rendered only for a 32-bit integer.
 */
RYX_OBJECT_API RyxObjectStatus RyxObjectRender(char const* mustache, RyxObject const* object,
                                               char** text, size_t* size) RYX_OBJECT_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* RYX_OBJECT_SERIALIZE_H */
