// detail::FindInvalidUtf8: where text stops being UTF-8.
//
// Valid UTF-8 is the shortest encoding of a code point up to U+10FFFF that is
// not a surrogate: overlong forms, encoded surrogates (which a lone \uDC00
// escape would otherwise leave behind) and truncated sequences are invalid.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ryx::object::detail {

// The offset of the first byte that does not start a valid sequence, or
// std::string_view::npos when all of `text` is valid.
std::size_t FindInvalidUtf8(std::string_view text) noexcept;

// "the byte 0xC3 at offset 5 does not start a valid UTF-8 sequence"
std::string DescribeInvalidUtf8(std::string_view text, std::size_t offset);

}  // namespace ryx::object::detail
