// detail::ReadBinary: the direct reader behind FromBinary.
//
// It reads the fields of the portable binary form straight from the bytes and
// builds what the registered load functions build through cereal's archive:
// the same checks, containers filled in the same steps (room made ahead for
// a few items only, the first of repeated keys kept), nesting counted where
// Load and the schema's load count it.
#pragma once

#include <ryx/object/fwd.hpp>
#include <ryx/object/serialize/location.hpp>

#include <memory>
#include <string_view>

namespace ryx::object::detail {

// Loads `bytes` (endianness byte first) into `value` and returns true, or
// returns false, with `value` unchanged, for anything it does not read
// itself: a stream in the other byte order, one that ends early, a bool byte
// other than 0 or 1, a type id that cannot be loaded, a type whose binary
// load function is not the library's own. The archive then reads the stream,
// and reports the error if there is one. Throws NestingLimitError,
// std::bad_alloc, and what construct functions and Set throw.
//
// When it stops for a field the archive refuses too, or throws, it sets
// `failure` to where: the offset of that field (or of the value that threw)
// and the path of the value holding it.
bool ReadBinary(std::string_view bytes, std::shared_ptr<Object>& value, Location& failure);

}  // namespace ryx::object::detail
