// detail::JsonPointer: the path of a value as a JSON Pointer (RFC 6901),
// built from the innermost segment outwards, as an error passes up through
// the levels it happened under.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ryx::object::detail {

// "/key" with '~' written "~0" and '/' written "~1".
std::string PointerSegment(std::string_view key);
std::string PointerSegment(std::size_t index);

}  // namespace ryx::object::detail
