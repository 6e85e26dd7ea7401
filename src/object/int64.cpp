#include <ryx/object/int64.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<long, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<long, Object>);

template <>
long Parse<long>(std::string const& text) {
  return static_cast<long>(detail::ParseSigned(text, std::numeric_limits<long>::min(),
                                               std::numeric_limits<long>::max()));
}

}  // namespace ryx::object
