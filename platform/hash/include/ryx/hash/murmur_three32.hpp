// ryx::hash::MurmurThree32: a 32-bit MurmurHash3 (x86 variant) value.
//
// The value type of a type id. MakeData(char const*) is constexpr, so the id of
// a compile-time name folds to a constant; MakeData(boost::string_view) is the
// library's out-of-line function for counted strings. Both hash the bytes with
// the seed 0x0AEF6901 and agree on every input. The value 0 is the null id.
#pragma once

#include <ryx/hash/export.hpp>

#include <boost/utility/string_view.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>

namespace ryx::hash {

class RYX_HASH_EXPORT MurmurThree32 {
public:
  static constexpr std::uint32_t Seed = 0x0AEF6901u;

  // The null id.
  constexpr MurmurThree32() noexcept = default;
  constexpr explicit MurmurThree32(std::uint32_t value) noexcept : value(value) {}

  // Hash of a null-terminated string; a null pointer gives the null id.
  static constexpr MurmurThree32 MakeData(char const* text) noexcept {
    if (text == nullptr) {
      return MurmurThree32();
    }
    std::size_t length = 0;
    while (text[length] != '\0') {
      ++length;
    }
    return MurmurThree32(Compute(text, length, Seed));
  }

  // Hash of a counted string (may contain NUL bytes).
  static MurmurThree32 MakeData(boost::string_view text) noexcept;

  // The reference MurmurHash3_x86_32 over `length` bytes with any seed; blocks
  // are read as little-endian words whatever the machine's byte order.
  static constexpr std::uint32_t Compute(char const* data, std::size_t length,
                                         std::uint32_t seed) noexcept {
    constexpr std::uint32_t c1 = 0xcc9e2d51u;
    constexpr std::uint32_t c2 = 0x1b873593u;
    std::uint32_t h = seed;
    std::size_t const blocks = length / 4;
    for (std::size_t i = 0; i < blocks; ++i) {
      std::uint32_t k = Byte(data, 4 * i) | (Byte(data, 4 * i + 1) << 8) |
                        (Byte(data, 4 * i + 2) << 16) | (Byte(data, 4 * i + 3) << 24);
      k *= c1;
      k = Rotate(k, 15);
      k *= c2;
      h ^= k;
      h = Rotate(h, 13);
      h = h * 5u + 0xe6546b64u;
    }
    std::size_t const tail = blocks * 4;
    std::uint32_t k = 0;
    switch (length & 3u) {
      case 3:
        k ^= Byte(data, tail + 2) << 16;
        [[fallthrough]];
      case 2:
        k ^= Byte(data, tail + 1) << 8;
        [[fallthrough]];
      case 1:
        k ^= Byte(data, tail);
        k *= c1;
        k = Rotate(k, 15);
        k *= c2;
        h ^= k;
        break;
      default:
        break;
    }
    h ^= static_cast<std::uint32_t>(length);
    h ^= h >> 16;
    h *= 0x85ebca6bu;
    h ^= h >> 13;
    h *= 0xc2b2ae35u;
    h ^= h >> 16;
    return h;
  }

  constexpr std::uint32_t GetValue() const noexcept { return value; }

  void swap(MurmurThree32& other) noexcept {
    std::uint32_t const mine = value;
    value = other.value;
    other.value = mine;
  }

  friend constexpr bool operator==(MurmurThree32 const& a, MurmurThree32 const& b) noexcept {
    return a.value == b.value;
  }
  friend constexpr bool operator!=(MurmurThree32 const& a, MurmurThree32 const& b) noexcept {
    return a.value != b.value;
  }

private:
  static constexpr std::uint32_t Byte(char const* data, std::size_t index) noexcept {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(data[index]));
  }
  static constexpr std::uint32_t Rotate(std::uint32_t x, int r) noexcept {
    return (x << r) | (x >> (32 - r));
  }

  std::uint32_t value = 0;
};

inline void swap(MurmurThree32& a, MurmurThree32& b) noexcept { a.swap(b); }

// Prints the value as an unsigned decimal number, so that text forms embedding
// an id stay valid JSON numbers.
RYX_HASH_EXPORT std::ostream& operator<<(std::ostream& os, MurmurThree32 const& id);

}  // namespace ryx::hash

namespace std {
// A type id is already a well-mixed hash: use it as it is.
template <>
struct hash<ryx::hash::MurmurThree32> {
  std::size_t operator()(ryx::hash::MurmurThree32 const& id) const noexcept {
    return id.GetValue();
  }
};
}  // namespace std
