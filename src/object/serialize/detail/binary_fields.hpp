// Fields of the portable binary form that are not read as cereal reads them:
// the input is untrusted, so a bool byte is checked and a count or length is
// never used to allocate before the bytes it claims have been read.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "object/serialize/detail/archives.hpp"

namespace ryx::object::detail {

// One byte, 0 or 1.
void WriteBool(cereal::PortableBinaryOutputArchive& archive, bool value);
// std::runtime_error for any other byte.
bool ReadBool(cereal::PortableBinaryInputArchive& archive);

// Length (8 bytes), then the bytes.
void WriteString(cereal::PortableBinaryOutputArchive& archive, std::string const& value);
std::string ReadString(cereal::PortableBinaryInputArchive& archive);

// A count or length, 8 bytes.
std::uint64_t ReadCount(cereal::PortableBinaryInputArchive& archive);

// Reads a count and then that many items with readItem(archive, item). Room
// is made ahead for a few items only and then the list grows item by item, so
// a count larger than the stream fails when the stream ends, having held
// little more than was read.
template <class Item, class ReadItem>
std::vector<Item> ReadItems(cereal::PortableBinaryInputArchive& archive, ReadItem&& readItem) {
  constexpr std::uint64_t ReservedAhead = 16;
  std::uint64_t const count = ReadCount(archive);
  std::vector<Item> items;
  items.reserve(static_cast<std::size_t>(std::min(count, ReservedAhead)));
  for (std::uint64_t index = 0; index != count; ++index) {
    readItem(archive, items.emplace_back());
  }
  return items;
}

}  // namespace ryx::object::detail
