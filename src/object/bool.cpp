#include <ryx/object/bool.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <cstring>
#include <stdexcept>

namespace ryx::object {

template class Primitive<bool, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<bool, Object>);

namespace {

// The white space skipped before a boolean word.
constexpr char const* BooleanSpace = " \r\n\f\t\v";

bool StartsWith(std::string const& text, std::size_t from, char const* word) {
  return text.compare(from, std::strlen(word), word) == 0;
}

}  // namespace

template <>
bool Parse<bool>(std::string const& text) {
  std::size_t const start = text.find_first_not_of(BooleanSpace);
  if (start != std::string::npos) {
    if (StartsWith(text, start, "true") || StartsWith(text, start, "1")) {
      return true;
    }
    if (StartsWith(text, start, "false") || StartsWith(text, start, "0")) {
      return false;
    }
  }
  throw std::invalid_argument("Failed to parse the string into a boolean value: " + text);
}

}  // namespace ryx::object
