// ryx::type::traits::IsInitializerList<T>: true for std::initializer_list.
#pragma once

#include <initializer_list>
#include <type_traits>

namespace ryx::type::traits {

template <class T>
struct IsInitializerList : std::false_type {};

template <class T>
struct IsInitializerList<std::initializer_list<T>> : std::true_type {};

}  // namespace ryx::type::traits
