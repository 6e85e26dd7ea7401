// ryx::type::function::MakeOverloads: fills a tuple of functions, one per
// archive (or other parameter type), with the functions made for the type T.
//
// Each element of type F is assigned MakeOverload(Tag<T>(), Tag<F>()), an
// overload that the owner of T provides and argument-dependent lookup finds.
#pragma once

#include <ryx/type/tag.hpp>

#include <tuple>

namespace ryx::type::function {

// Assigns the function made for T to the F<A> element of `tuple`, for each A in
// turn, and returns `tuple`.
template <class T, template <class> class F, class... A, class Tuple>
Tuple& MakeOverloads(Tuple& tuple) {
  ((std::get<F<A>>(tuple) = MakeOverload(Tag<T>(), Tag<F<A>>())), ...);
  return tuple;
}

// The same for every element of the tuple.
template <class T, class... F>
std::tuple<F...>& MakeOverloads(std::tuple<F...>& tuple) {
  ((std::get<F>(tuple) = MakeOverload(Tag<T>(), Tag<F>())), ...);
  return tuple;
}

}  // namespace ryx::type::function
