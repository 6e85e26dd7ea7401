#include "object/serialize/detail/json_pointer.hpp"

namespace ryx::object::detail {

std::string PointerSegment(std::string_view key) {
  std::string segment;
  segment.reserve(key.size() + 1);
  segment += '/';
  for (char const c : key) {
    if (c == '~') {
      segment += "~0";
    } else if (c == '/') {
      segment += "~1";
    } else {
      segment += c;
    }
  }
  return segment;
}

std::string PointerSegment(std::size_t index) { return '/' + std::to_string(index); }

}  // namespace ryx::object::detail
