#include "object/serialize/detail/binary_fields.hpp"

#include <algorithm>
#include <stdexcept>

namespace ryx::object::detail {

namespace {

// Strings are read in pieces of this size, so that a claimed length is only
// ever backed by bytes that were there.
constexpr std::uint64_t StringPiece = 64 * 1024;

}  // namespace

void WriteBool(cereal::PortableBinaryOutputArchive& archive, bool value) {
  archive(static_cast<std::uint8_t>(value ? 1 : 0));
}

bool ReadBool(cereal::PortableBinaryInputArchive& archive) {
  std::uint8_t byte = 0;
  archive(byte);
  if (byte > 1) {
    throw std::runtime_error("Invalid bool byte in the binary form: " + std::to_string(byte) +
                             " (expected 0 or 1)");
  }
  return byte == 1;
}

void WriteString(cereal::PortableBinaryOutputArchive& archive, std::string const& value) {
  archive(static_cast<std::uint64_t>(value.size()));
  archive(cereal::binary_data(value.data(), value.size()));
}

std::string ReadString(cereal::PortableBinaryInputArchive& archive) {
  std::uint64_t remaining = ReadCount(archive);
  std::string value;
  while (remaining != 0) {
    std::size_t const piece = static_cast<std::size_t>(std::min(remaining, StringPiece));
    std::size_t const start = value.size();
    value.resize(start + piece);
    archive(cereal::binary_data(&value[start], piece));
    remaining -= piece;
  }
  return value;
}

std::uint64_t ReadCount(cereal::PortableBinaryInputArchive& archive) {
  std::uint64_t count = 0;
  archive(count);
  return count;
}

}  // namespace ryx::object::detail
