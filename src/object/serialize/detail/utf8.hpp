// detail::Utf8SequenceLength and FindInvalidUtf8: where text stops being
// UTF-8.
//
// Valid UTF-8 is the shortest encoding of a code point up to U+10FFFF that is
// not a surrogate: overlong forms, encoded surrogates (which a lone \uDC00
// escape would otherwise leave behind) and truncated sequences are invalid.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ryx::object::detail {

// The length of the valid multi-byte sequence at `at` (whose first byte is
// 0x80 or above), or 0 when it is not one.
inline std::size_t Utf8SequenceLength(char const* at, char const* end) noexcept {
  auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(at[i]); };
  auto const trailing = [&](std::size_t i, unsigned char low, unsigned char high) {
    return byte(i) >= low && byte(i) <= high;
  };
  std::size_t const left = static_cast<std::size_t>(end - at);
  unsigned char const lead = byte(0);
  if (lead < 0xC2) {
    return 0;  // a continuation byte, or the lead of an overlong pair
  }
  if (lead < 0xE0) {
    return left >= 2 && trailing(1, 0x80, 0xBF) ? 2 : 0;
  }
  if (lead < 0xF0) {
    unsigned char const low = lead == 0xE0 ? 0xA0 : 0x80;   // not overlong
    unsigned char const high = lead == 0xED ? 0x9F : 0xBF;  // not a surrogate
    return left >= 3 && trailing(1, low, high) && trailing(2, 0x80, 0xBF) ? 3 : 0;
  }
  if (lead < 0xF5) {
    unsigned char const low = lead == 0xF0 ? 0x90 : 0x80;   // not overlong
    unsigned char const high = lead == 0xF4 ? 0x8F : 0xBF;  // not above U+10FFFF
    return left >= 4 && trailing(1, low, high) && trailing(2, 0x80, 0xBF) &&
                   trailing(3, 0x80, 0xBF)
               ? 4
               : 0;
  }
  return 0;
}

// The offset of the first byte that does not start a valid sequence, or
// std::string_view::npos when all of `text` is valid.
std::size_t FindInvalidUtf8(std::string_view text) noexcept;

// "the byte 0xC3 at offset 5 does not start a valid UTF-8 sequence"
std::string DescribeInvalidUtf8(std::string_view text, std::size_t offset);

}  // namespace ryx::object::detail
