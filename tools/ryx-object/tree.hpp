// A value as an indented tree for people to read: each value's type name,
// then its content (a primitive's value, an enumerator's value and
// enumeration, a pointer's pointee type, a container's schema and children);
// dictionary keys sorted, array positions numbered, null values as "null"; a
// type of its own with a plain form (a record) shows its members like a
// dictionary's entries.
//
//   ryx.object.Dictionary {
//     "name": ryx.object.String "widget"
//     "sizes": ryx.object.Array required ryx.object.Int32 [
//       [0] ryx.object.Int32 1
//     ]
//   }
#pragma once

#include <ryx/object/fwd.hpp>

#include <string>

namespace ryx::object::tool {

// Ends with a newline. `value` may be null.
std::string Tree(Object const* value);

}  // namespace ryx::object::tool
