#include "object/serialize/detail/binary_fields.hpp"

#include <algorithm>
#include <stdexcept>

namespace ryx::object::detail {

namespace {

// Strings are read in pieces of this size, so that a claimed length is only
// ever backed by bytes that were there.
constexpr std::uint64_t StringPiece = 64 * 1024;

}  // namespace

void WriteCount(cereal::PortableBinaryOutputArchive& archive, std::uint64_t count) {
  WriteNumber(archive, count);
}

std::uint64_t ReadCount(cereal::PortableBinaryInputArchive& archive) {
  return ReadNumber<std::uint64_t>(archive);
}

void WriteString(cereal::PortableBinaryOutputArchive& archive, std::string const& value) {
  WriteCount(archive, value.size());
  archive.saveBinary<1>(value.data(), static_cast<std::streamsize>(value.size()));
}

bool ReadBool(cereal::PortableBinaryInputArchive& archive) {
  std::uint8_t const byte = ReadNumber<std::uint8_t>(archive);
  if (byte > 1) {
    throw std::runtime_error("Invalid bool byte in the binary form: " + std::to_string(byte) +
                             " (expected 0 or 1)");
  }
  return byte == 1;
}

std::string ReadString(cereal::PortableBinaryInputArchive& archive) {
  std::uint64_t remaining = ReadCount(archive);
  std::string value;
  while (remaining != 0) {
    std::size_t const piece = static_cast<std::size_t>(std::min(remaining, StringPiece));
    std::size_t const start = value.size();
    value.resize(start + piece);
    archive.loadBinary<1>(&value[start], static_cast<std::streamsize>(piece));
    remaining -= piece;
  }
  return value;
}

}  // namespace ryx::object::detail
