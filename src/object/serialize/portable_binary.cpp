#include <ryx/object/serialize/binary.hpp>

#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/save.hpp>

#include <stdexcept>
#include <string>

#include "object/serialize/detail/binary_reader.hpp"
#include "object/serialize/detail/binary_writer.hpp"
#include "object/serialize/detail/handlers.hpp"
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

std::shared_ptr<Object> FromBinaryThroughArchive(std::string_view bytes) {
  // The archive would take any other first byte as "big-endian".
  if (!bytes.empty() && static_cast<unsigned char>(bytes.front()) > 1) {
    throw std::runtime_error("Invalid endianness byte in the binary form: " +
                             std::to_string(static_cast<unsigned char>(bytes.front())) +
                             " (expected 0 or 1)");
  }
  detail::ViewStream in(bytes);
  cereal::PortableBinaryInputArchive archive(in);
  std::shared_ptr<Object> value;
  Load(archive, value);
  return value;
}

std::string ToBinary(std::shared_ptr<Object const> const& value) {
  std::string bytes;
  if (detail::WriteBinary(value.get(), bytes)) {
    return bytes;
  }
  return ToBinaryThroughArchive(value);
}

std::shared_ptr<Object> FromBinary(std::string_view bytes) {
  std::shared_ptr<Object> value;
  if (detail::ReadBinary(bytes, value)) {
    return value;
  }
  return FromBinaryThroughArchive(bytes);
}

}  // namespace ryx::object
