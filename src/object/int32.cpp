#include <ryx/object/int32.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<int, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<int, Object>);

template <>
int Parse<int>(std::string const& text) {
  return static_cast<int>(detail::ParseSigned(text, std::numeric_limits<int>::min(),
                                              std::numeric_limits<int>::max()));
}

}  // namespace ryx::object
