// ToBinary / FromBinary: a value in the portable binary form and back.
//
// The bytes are those of a fresh cereal portable binary output archive: the
// endianness byte (1 little-endian, 0 big-endian) and the value as Save writes
// it. FromBinary accepts any bytes: it loads the value or throws
// (cereal::Exception for a stream that ends early, std::runtime_error for an
// endianness byte other than 0 or 1 and the binary errors of Load,
// NestingLimitError). Counts and lengths are never trusted: memory grows with
// the bytes actually read, so a short stream claiming a huge count fails as
// soon as the stream ends. Strings and keys keep every byte, NUL included.
//
// ToBinary and FromBinary write and read the library's own kinds directly;
// for any other registered type, and for a stream in the other byte order,
// they go through cereal's archives and the registered save and load
// functions, as ToBinaryThroughArchive and FromBinaryThroughArchive always
// do. Both paths give the same bytes, values and errors.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace ryx::object {

RYX_OBJECT_EXPORT std::string ToBinary(std::shared_ptr<Object const> const& value);
RYX_OBJECT_EXPORT std::shared_ptr<Object> FromBinary(std::string_view bytes);

RYX_OBJECT_EXPORT std::string ToBinaryThroughArchive(std::shared_ptr<Object const> const& value);
RYX_OBJECT_EXPORT std::shared_ptr<Object> FromBinaryThroughArchive(std::string_view bytes);

}  // namespace ryx::object
