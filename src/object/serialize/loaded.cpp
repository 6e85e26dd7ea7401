#include "object/serialize/detail/loaded.hpp"

namespace ryx::object {

template <>
template <>
void Array<Object>::Serialize(detail::LoadedArray& loaded) {
  swap(required, loaded.required);
  objects.swap(loaded.objects);
}

template <>
template <>
void Dictionary<Object>::Serialize(detail::LoadedDictionary& loaded) {
  swap(required, loaded.required);
  properties.swap(loaded.properties);
}

template <>
template <>
void Enum<Object>::Serialize(detail::LoadedEnum& loaded) {
  type = hash::MurmurThree32(loaded.type);
  value = loaded.value;
}

template <>
template <>
void Pointer<Object, void>::Serialize(detail::LoadedPointer& loaded) {
  type = hash::MurmurThree32(loaded.type);
  pointer.reset();
}

template <>
template <>
void Pointer<Object, void const>::Serialize(detail::LoadedPointer& loaded) {
  type = hash::MurmurThree32(loaded.type);
  pointer.reset();
}

}  // namespace ryx::object
