#include <ryx/object/uint64.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<unsigned long, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<unsigned long, Object>);

template <>
unsigned long Parse<unsigned long>(std::string const& text) {
  return static_cast<unsigned long>(
      detail::ParseUnsigned(text, std::numeric_limits<unsigned long>::max()));
}

}  // namespace ryx::object
