#include "object/serialize/detail/utf8.hpp"

#include <boost/locale/utf.hpp>

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace ryx::object::detail {

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;

constexpr std::uint64_t HighBits = 0x8080808080808080u;

}  // namespace

std::size_t FindInvalidUtf8(std::string_view text) noexcept {
  char const* const begin = text.data();
  char const* const end = begin + text.size();
  char const* at = begin;
  while (at != end) {
    // Most text is ASCII: eight bytes at a time while it is.
    if (end - at >= 8) {
      std::uint64_t word;
      std::memcpy(&word, at, sizeof word);
      if ((word & HighBits) == 0) {
        at += 8;
        continue;
      }
    }
    if (static_cast<unsigned char>(*at) < 0x80) {
      ++at;
      continue;
    }
    char const* const start = at;
    boost::locale::utf::code_point const c = Utf8::decode(at, end);
    if (c == boost::locale::utf::illegal || c == boost::locale::utf::incomplete) {
      return static_cast<std::size_t>(start - begin);
    }
  }
  return std::string_view::npos;
}

std::string DescribeInvalidUtf8(std::string_view text, std::size_t offset) {
  char byte[8];
  std::snprintf(byte, sizeof byte, "0x%02X", static_cast<unsigned>(static_cast<unsigned char>(text[offset])));
  return std::string("the byte ") + byte + " at offset " + std::to_string(offset) +
         " does not start a valid UTF-8 sequence";
}

}  // namespace ryx::object::detail
