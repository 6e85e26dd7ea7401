// detail::WriteJson: the direct JSON writer behind ToJson.
//
// It walks the value and writes its document through rapidjson's Writer
// (compact) or PrettyWriter (indented, set up as cereal's archive sets up its
// own) straight into the text, with the members, their order and the number
// kinds that the registered save functions write through the archive: the
// indented text is byte for byte the archive's. Nesting is counted where Save
// and the schema's save count it.
#pragma once

#include <ryx/object/fwd.hpp>
#include <ryx/object/serialize/json.hpp>

#include <string>

namespace ryx::object::detail {

// The document of `value` (null writes the null record). Returns false, with
// `text` unspecified, when the value holds a type whose JSON save function is
// not the library's own: only the archive can write it. Throws what Save
// throws (NestingLimitError, std::logic_error for an unregistered type,
// std::runtime_error for a type without a JSON save function) and
// std::bad_alloc.
bool WriteJson(Object const* value, JsonLayout layout, std::string& text);

}  // namespace ryx::object::detail
