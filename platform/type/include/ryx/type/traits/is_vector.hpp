// ryx::type::traits::IsVector<T>: true for std::vector of any element.
#pragma once

#include <type_traits>
#include <vector>

namespace ryx::type::traits {

template <class T>
struct IsVector : std::false_type {};

template <class T, class A>
struct IsVector<std::vector<T, A>> : std::true_type {};

}  // namespace ryx::type::traits
