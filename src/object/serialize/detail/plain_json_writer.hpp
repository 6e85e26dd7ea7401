// detail::WritePlainJson: the plain JSON writer behind ToPlainJson.
//
// The walk of the typed JSON writer (json_walk.hpp) with the rules of plain
// JSON: each kind as the JSON it naturally is, no type names, no schemas.
#pragma once

#include <ryx/object/fwd.hpp>
#include <ryx/object/serialize/json.hpp>

#include <string>

namespace ryx::object::detail {

// The text of `value` (null writes null). Throws PlainJsonError for what
// plain JSON cannot hold, NestingLimitError, std::logic_error for an
// unregistered type, std::bad_alloc, and what a type's PlainFunctions throw.
std::string WritePlainJson(Object const* value, JsonLayout layout);

}  // namespace ryx::object::detail
