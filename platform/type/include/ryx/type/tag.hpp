// ryx::type::Tag<T>: an empty value standing for the type T, used to select
// overloads (found by argument-dependent lookup) without constructing a T.
#pragma once

namespace ryx::type {

template <class T>
struct Tag {
  using Type = T;
};

}  // namespace ryx::type
