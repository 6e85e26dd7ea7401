#include <ryx/object/double.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<double, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<double, Object>);

template <>
double Parse<double>(std::string const& text) {
  return detail::ConvertOrThrow(
      text, [](std::string const& t) { return std::stod(t); },
      "Failed to parse the string into a double-precision floating point number: ",
      "The string was out of the range of a double-precision floating pointer number: ");
}

}  // namespace ryx::object
