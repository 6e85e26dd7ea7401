#include <ryx/object/serialize/binary.hpp>

#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/save.hpp>

#include <stdexcept>
#include <string>
#include <utility>

#include "object/serialize/detail/binary_reader.hpp"
#include "object/serialize/detail/binary_writer.hpp"
#include "object/serialize/detail/handlers.hpp"
#include "object/serialize/detail/locate.hpp"
#include "object/serialize/detail/string_stream.hpp"
#include "object/serialize/detail/view_stream.hpp"

namespace ryx::object {

#define RYX_OBJECT_DETAIL_OUTPUT cereal::PortableBinaryOutputArchive
#define RYX_OBJECT_DETAIL_INPUT cereal::PortableBinaryInputArchive
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_SAVE)
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_LOAD)

std::string ToBinaryThroughArchive(std::shared_ptr<Object const> const& value) {
  detail::StringStream bytes;
  cereal::PortableBinaryOutputArchive archive(bytes);
  Save(archive, value);
  return bytes.Take();
}

// A failure is placed where the archive had read to.
std::shared_ptr<Object> FromBinaryThroughArchive(std::string_view bytes) {
  detail::ViewStream in(bytes);
  try {
    // The archive would take any other first byte as "big-endian".
    if (!bytes.empty() && static_cast<unsigned char>(bytes.front()) > 1) {
      throw std::runtime_error("Invalid endianness byte in the binary form: " +
                               std::to_string(static_cast<unsigned char>(bytes.front())) +
                               " (expected 0 or 1)");
    }
    cereal::PortableBinaryInputArchive archive(in);
    std::shared_ptr<Object> value;
    Load(archive, value);
    return value;
  } catch (...) {
    Location location;
    location.hasOffset = true;
    location.offset = in.Position();
    detail::RethrowLocated(std::move(location));
  }
}

std::string ToBinary(std::shared_ptr<Object const> const& value) {
  std::string bytes;
  if (detail::WriteBinary(value.get(), bytes)) {
    return bytes;
  }
  return ToBinaryThroughArchive(value);
}

// The direct reader places a failure more precisely than the archive: at
// the start of the field that could not be read.
std::shared_ptr<Object> FromBinary(std::string_view bytes) {
  Location failure;
  try {
    std::shared_ptr<Object> value;
    if (detail::ReadBinary(bytes, value, failure)) {
      return value;
    }
    return FromBinaryThroughArchive(bytes);
  } catch (...) {
    detail::RethrowLocated(std::move(failure));
  }
}

}  // namespace ryx::object
