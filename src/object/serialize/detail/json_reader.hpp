// detail::ReadJson: the direct JSON reader behind FromJson.
//
// It parses with rapidjson's iterative SAX reader and builds the value as the
// members arrive, in the order the writer writes them, keeping its own stack
// of the values and schemas under construction instead of recursing. What it
// builds is what the registered load functions build through cereal's
// archive from the same document: the same checks on every number, strings
// and keys cut at their first NUL, the first of repeated keys, containers
// filled in the same steps.
#pragma once

#include <ryx/object/fwd.hpp>
#include <ryx/object/serialize/location.hpp>

#include <memory>
#include <string_view>

namespace ryx::object::detail {

// Loads `document` into `value` and returns true, or returns false, with
// `value` unchanged, for anything it does not read itself: a parse error,
// members in another order or unknown, a number the archive would refuse, a
// type whose JSON load function is not the library's own, a value or schema
// nested deeper than the limit. The archive then decides, and reports the
// error if there is one. Throws std::bad_alloc, and what construct functions
// and Set throw.
//
// When it stops where the archive fails too (text that is not JSON, a value
// of the wrong JSON kind or range, a node without a member it needs, nesting
// past the limit), it sets `failure` to where: the line, column and offset,
// and the path of the value at fault.
bool ReadJson(std::string_view document, std::shared_ptr<Object>& value, Location& failure);

}  // namespace ryx::object::detail
