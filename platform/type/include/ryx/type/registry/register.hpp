// ryx::type::registry::Register<T, R, I>: builds the record of T and enters it
// into the registry R.
//
// I must provide the nested types ConstructFunction, SaveFunctions and
// LoadFunctions (the latter two tuples of functions filled through
// function::MakeOverloads) and the constructor
//   I(hash::MurmurThree32 id, char const* name, ConstructFunction, SaveFunctions, LoadFunctions).
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/type/function/make_overloads.hpp>
#include <ryx/type/name.hpp>
#include <ryx/type/registry/construct.hpp>

#include <utility>

namespace ryx::type::registry {

// Returns the record the registry holds for T's id: the earlier record when the
// id was registered already.
template <class T, class R, class I = typename R::Info>
I const& Register(R& registry) {
  typename I::SaveFunctions save;
  function::MakeOverloads<T>(save);
  typename I::LoadFunctions load;
  function::MakeOverloads<T>(load);
  typename I::ConstructFunction construct = Construct<T, void>();
  constexpr hash::MurmurThree32 id = hash::MurmurThree32::MakeData(Name<T>::Value);
  return registry.Register(
      I(id, Name<T>::Value, std::move(construct), std::move(save), std::move(load)));
}

}  // namespace ryx::type::registry
