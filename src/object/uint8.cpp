#include <ryx/object/uint8.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<unsigned char, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<unsigned char, Object>);

template <>
unsigned char Parse<unsigned char>(std::string const& text) {
  return static_cast<unsigned char>(
      detail::ParseUnsigned(text, std::numeric_limits<unsigned char>::max()));
}

}  // namespace ryx::object
