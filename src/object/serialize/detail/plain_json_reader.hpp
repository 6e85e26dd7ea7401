// detail::ReadPlainJson: the plain JSON reader behind FromPlainJson.
//
// It parses with rapidjson's iterative SAX reader, strictly (RFC 8259), and
// builds the value as the events arrive, the way the typed reader does:
// without recursion, each container taking its finished children
// (pending_children.hpp) when it ends. A plan made from the schema
// (plain_plan.hpp) says what each value must become; numbers arrive as their
// text and are converted exactly (std::from_chars), range-checked into the
// kind the plan names.
#pragma once

#include <ryx/object/fwd.hpp>

#include <memory>
#include <string_view>

#include "object/serialize/detail/plain_plan.hpp"

namespace ryx::object::detail {

// The value of `text` read by `plan`. Throws PlainJsonError (syntax, a value
// the plan refuses), NestingLimitError with a Location, std::bad_alloc, and
// what the PlainFunctions of a type of the user's own throw, other than
// std::invalid_argument, which becomes a PlainJsonError.
std::shared_ptr<Object> ReadPlainJson(std::string_view text, PlainPlan const& plan);

}  // namespace ryx::object::detail
