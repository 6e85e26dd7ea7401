#include <ryx/object/enum.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

namespace ryx::object {

template <class Base>
void Enum<Base>::Set(Object const& other) {
  Enum const& that = other.As<Enum>();
  type = that.type;
  value = that.value;
}

template <class Base>
bool Enum<Base>::EqualTo(Object const& other) const {
  if (!other.Is<Enum>()) {
    return false;
  }
  Enum const& that = other.As<Enum>();
  return type == that.type && value == that.value;
}

template class Enum<Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Enum<Object>);

}  // namespace ryx::object
