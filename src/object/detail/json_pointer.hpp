// Building JSON Pointers (RFC 6901) one reference token at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ryx::object::detail {

// Appends "/" and `key`, with '~' escaped as "~0" and '/' as "~1", so that
// the pointer splits back into the same keys.
inline void AppendPointerKey(std::string& pointer, std::string_view key) {
  pointer += '/';
  for (char const c : key) {
    if (c == '~') {
      pointer += "~0";
    } else if (c == '/') {
      pointer += "~1";
    } else {
      pointer += c;
    }
  }
}

// Appends "/" and the decimal index.
inline void AppendPointerIndex(std::string& pointer, std::size_t index) {
  pointer += '/';
  pointer += std::to_string(index);
}

}  // namespace ryx::object::detail
