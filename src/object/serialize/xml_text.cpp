#include "object/serialize/detail/xml_text.hpp"

#include <boost/locale/utf.hpp>

#include <cstdio>
#include <stdexcept>
#include <string>

namespace ryx::object::detail {

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;

bool IsXmlChar(boost::locale::utf::code_point c) {
  return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c != 0xFFFE && c != 0xFFFF);
}

std::string Hex(char const* prefix, unsigned long value, int digits) {
  char text[32];
  std::snprintf(text, sizeof text, "%s%0*lX", prefix, digits, value);
  return text;
}

[[noreturn]] void ThrowNotXml(char const* what, std::string const& problem, std::size_t offset) {
  throw std::runtime_error(std::string("Cannot save the ") + what + " in the XML form: " + problem +
                           " at byte offset " + std::to_string(offset));
}

}  // namespace

void CheckXmlText(std::string_view text, char const* what) {
  char const* const begin = text.data();
  char const* const end = begin + text.size();
  for (char const* at = begin; at != end;) {
    unsigned char const byte = static_cast<unsigned char>(*at);
    if (byte >= 0x20 && byte < 0x80) {
      ++at;
      continue;
    }
    char const* const start = at;
    boost::locale::utf::code_point const c = Utf8::decode(at, end);
    if (c == boost::locale::utf::illegal || c == boost::locale::utf::incomplete) {
      ThrowNotXml(what, Hex("the byte 0x", byte, 2) + " does not start a valid UTF-8 sequence",
                  start - begin);
    }
    if (!IsXmlChar(c)) {
      ThrowNotXml(what,
                  "XML 1.0 cannot hold " + (c < 0x20 ? Hex("the control character 0x", c, 2)
                                                     : Hex("the character U+", c, 4)),
                  start - begin);
    }
  }
}

}  // namespace ryx::object::detail
