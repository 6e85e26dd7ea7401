#include <ryx/object/int16.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/object/string.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <limits>

#include "object/detail/parse_number.hpp"

namespace ryx::object {

template class Primitive<short, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<short, Object>);

template <>
short Parse<short>(std::string const& text) {
  return static_cast<short>(detail::ParseSigned(text, std::numeric_limits<short>::min(),
                                                std::numeric_limits<short>::max()));
}

}  // namespace ryx::object
