// ryx::object::container::MaxNesting: how deep the recursive operations on
// containers may go.
//
// Deep copies (Set(Object const&), Object::Copy) and comparisons (EqualTo) of
// arrays and dictionaries recurse once per level of nesting. Past this many
// levels they throw std::runtime_error instead of exhausting the stack.
// Destruction is not limited: it releases nested containers iteratively.
#pragma once

#include <cstddef>

namespace ryx::object::container {

inline constexpr std::size_t MaxNesting = 1000;

}  // namespace ryx::object::container
