// detail::WriteBinary: the direct writer behind ToBinary.
//
// It walks the value and writes the fields of the portable binary form
// straight into the text, in the machine's byte order (which the first byte
// states), exactly as the registered save functions write them through
// cereal's archive. Nesting is counted where Save and the schema's save
// count it.
#pragma once

#include <ryx/object/fwd.hpp>

#include <string>

namespace ryx::object::detail {

// The bytes of `value`, endianness byte first. Returns false, with `bytes`
// unspecified, when the value holds a type whose binary save function is not
// the library's own: only the archive can write it. Throws what Save throws
// (NestingLimitError, std::logic_error for an unregistered type,
// std::runtime_error for a type without a binary save function) and
// std::bad_alloc.
bool WriteBinary(Object const* value, std::string& bytes);

}  // namespace ryx::object::detail
