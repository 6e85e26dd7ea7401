#include <ryx/object/uint16.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<unsigned short, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<unsigned short, Object>);

template <>
unsigned short Parse<unsigned short>(std::string const& text) {
  return static_cast<unsigned short>(
      detail::ParseUnsigned(text, std::numeric_limits<unsigned short>::max()));
}

}  // namespace ryx::object
