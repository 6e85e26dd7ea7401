#include <ryx/object/float.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<float, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<float, Object>);

template <>
float Parse<float>(std::string const& text) {
  return detail::ConvertOrThrow(
      text, [](std::string const& t) { return std::stof(t); },
      "Failed to parse the string into a floating point number: ",
      "The string was out of the range of a floating pointer number: ");
}

}  // namespace ryx::object
