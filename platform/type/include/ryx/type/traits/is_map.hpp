// ryx::type::traits::IsMap<T>: true for std::map and std::unordered_map.
#pragma once

#include <map>
#include <type_traits>
#include <unordered_map>

namespace ryx::type::traits {

template <class T>
struct IsMap : std::false_type {};

template <class K, class V, class C, class A>
struct IsMap<std::map<K, V, C, A>> : std::true_type {};

template <class K, class V, class H, class E, class A>
struct IsMap<std::unordered_map<K, V, H, E, A>> : std::true_type {};

}  // namespace ryx::type::traits
