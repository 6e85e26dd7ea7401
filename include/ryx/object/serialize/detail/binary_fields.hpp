// The fields of the portable binary form.
//
// Numbers go straight to the archive's binary primitives, in its byte order:
// the same bytes as archive(value), without cereal's generic dispatch, which
// costs a chain of dependent loads per field. The input is untrusted, so a
// bool byte is checked and a count or length is never used to allocate before
// the bytes it claims have been read.
#pragma once

#include <ryx/object/export.hpp>

// Visible by default, as inside the library, so that the functions below can
// be exported.
#pragma GCC visibility push(default)
#include <cereal/archives/portable_binary.hpp>
#pragma GCC visibility pop

#include <algorithm>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ryx::object::detail {

// A fixed-width number: an integer or a floating-point value.
template <class T>
void WriteNumber(cereal::PortableBinaryOutputArchive& archive, T value) {
  static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>);
  archive.template saveBinary<sizeof(T)>(&value, sizeof(T));
}

template <class T>
T ReadNumber(cereal::PortableBinaryInputArchive& archive) {
  static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>);
  T value{};
  archive.template loadBinary<sizeof(T)>(&value, sizeof(T));
  return value;
}

// A count or length, 8 bytes. Out of line, like WriteString, ReadString and
// the binary type record: containers write and read them once per level of
// nesting, and the archive's error texts would otherwise take stack on every
// level below.
RYX_OBJECT_EXPORT void WriteCount(cereal::PortableBinaryOutputArchive& archive, std::uint64_t count);
RYX_OBJECT_EXPORT std::uint64_t ReadCount(cereal::PortableBinaryInputArchive& archive);

// One byte, 0 or 1.
inline void WriteBool(cereal::PortableBinaryOutputArchive& archive, bool value) {
  WriteNumber(archive, static_cast<std::uint8_t>(value ? 1 : 0));
}
// std::runtime_error for any other byte.
RYX_OBJECT_EXPORT bool ReadBool(cereal::PortableBinaryInputArchive& archive);

// Length (8 bytes), then the bytes.
RYX_OBJECT_EXPORT void WriteString(cereal::PortableBinaryOutputArchive& archive, std::string const& value);
RYX_OBJECT_EXPORT std::string ReadString(cereal::PortableBinaryInputArchive& archive);

// Room made ahead of the items a count claims.
inline constexpr std::uint64_t ReservedAhead = 16;

// Reads a count and then that many items with readItem(archive, item). Room
// is made ahead for a few items only and then the list grows item by item, so
// a count larger than the stream fails when the stream ends, having held
// little more than was read.
template <class Item, class ReadItem>
std::vector<Item> ReadItems(cereal::PortableBinaryInputArchive& archive, ReadItem&& readItem) {
  std::uint64_t const count = ReadCount(archive);
  std::vector<Item> items;
  items.reserve(static_cast<std::size_t>(std::min(count, ReservedAhead)));
  for (std::uint64_t index = 0; index != count; ++index) {
    readItem(archive, items.emplace_back());
  }
  return items;
}

}  // namespace ryx::object::detail
