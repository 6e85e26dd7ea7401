// ryx::type::Name<T>: the dotted type name of T, known at compile time.
//
// Each library specialises it for its own types:
//   template <> struct Name<MyType> { static constexpr char const* Value = "my.Type"; };
// The primary template is left undefined, so asking for the name of a type that
// has none fails to compile.
#pragma once

namespace ryx::type {

template <class T>
struct Name;

}  // namespace ryx::type
