#include <ryx/object/string.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

namespace ryx::object {

template class Primitive<std::string, Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Primitive<std::string, Object>);

}  // namespace ryx::object
