#include <ryx/object/pointer.hpp>

#include <ryx/object/registry/get.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <stdexcept>
#include <utility>

namespace ryx::object {

template <class Base, class T>
void Pointer<Base, T>::Set(std::shared_ptr<T> newPointer, hash::MurmurThree32 newType) {
  if (type != hash::MurmurThree32()) {
    if (newType != type) {
      throw std::invalid_argument("Cannot set value from pointer of different type");
    }
  } else {
    type = newType;
  }
  pointer.swap(newPointer);
}

template <class Base, class T>
void Pointer<Base, T>::Set(Object const& other) {
  Pointer const& that = other.As<Pointer>();
  Set(that.pointer, that.type);
}

template <class Base, class T>
bool Pointer<Base, T>::EqualTo(Object const& other) const {
  return other.Is<Pointer>() && other.As<Pointer>().pointer.get() == pointer.get();
}

template class Pointer<Object, void>;
template class Pointer<Object, void const>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Pointer<Object, void>);
RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Pointer<Object, void const>);

}  // namespace ryx::object
