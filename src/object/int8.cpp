#include <ryx/object/int8.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<signed char, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<signed char, Object>);

template <>
signed char Parse<signed char>(std::string const& text) {
  return static_cast<signed char>(detail::ParseSigned(
      text, std::numeric_limits<signed char>::min(), std::numeric_limits<signed char>::max()));
}

}  // namespace ryx::object
