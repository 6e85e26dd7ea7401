// What a direct reader read for a container, an enumerator or a pointer,
// handed to the value through its Serialize member template, the way the
// archive's load hands it over: the containers swap the members read in, the
// enumerator and the pointer take the type ids read (a pointer lets its
// pointee go).
#pragma once

#include <ryx/object/required.hpp>

#include <cstdint>

#include "object/serialize/detail/kinds.hpp"

namespace ryx::object {

namespace detail {

struct LoadedArray {
  Required& required;
  ArrayKind::Objects& objects;
};

struct LoadedDictionary {
  DictionaryKind::Properties& properties;
  Required& required;
};

struct LoadedEnum {
  std::uint32_t type;
  std::uint64_t value;
};

struct LoadedPointer {
  std::uint32_t type;
};

}  // namespace detail

template <>
template <>
void Array<Object>::Serialize(detail::LoadedArray& loaded);
template <>
template <>
void Dictionary<Object>::Serialize(detail::LoadedDictionary& loaded);
template <>
template <>
void Enum<Object>::Serialize(detail::LoadedEnum& loaded);
template <>
template <>
void Pointer<Object, void>::Serialize(detail::LoadedPointer& loaded);
template <>
template <>
void Pointer<Object, void const>::Serialize(detail::LoadedPointer& loaded);

}  // namespace ryx::object
