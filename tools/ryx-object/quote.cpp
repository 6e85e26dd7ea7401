#include "quote.hpp"

#include <cstdio>

namespace ryx::object::tool {

void AppendQuoted(std::string& out, std::string_view text) {
  out += '"';
  for (char const c : text) {
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\t':
        out += "\\t";
        break;
      case '\r':
        out += "\\r";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
          char escape[8];
          std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
          out += escape;
        } else {
          out += c;
        }
    }
  }
  out += '"';
}

}  // namespace ryx::object::tool
