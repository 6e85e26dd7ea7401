#include <ryx/object/uint32.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<unsigned int, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<unsigned int, Object>);

template <>
unsigned int Parse<unsigned int>(std::string const& text) {
  return static_cast<unsigned int>(
      detail::ParseUnsigned(text, std::numeric_limits<unsigned int>::max()));
}

}  // namespace ryx::object
