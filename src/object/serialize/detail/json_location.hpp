// detail::FindJsonValue: where a value of a JSON document starts, found by
// its path, for a failure the archive reports by path alone.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace ryx::object::detail {

// The offset of the '{' of the node of the value at `path` (a JSON Pointer
// over dictionary keys and array indices) in a document of the JSON form,
// members in any order: the elements of "objects", the "value" of each entry
// of "properties" (under the entry's "key", when it comes first), and a node
// under any other member but "required" (the children of a type of the
// user's own). The deepest value on the way to `path` when the document does
// not hold it all; nothing when it is not JSON.
std::optional<std::size_t> FindJsonValue(std::string_view document, std::string_view path);

}  // namespace ryx::object::detail
