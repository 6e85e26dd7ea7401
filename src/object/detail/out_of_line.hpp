// detail::OutOfLine: runs a call in a stack frame of its own.
//
// The recursive operations pass through a few functions per level of
// nesting, and whatever the compiler inlines into those functions (a stream,
// a string, the text of an error) takes stack on every level below. Work that
// does not recurse goes through OutOfLine, so that its locals are gone before
// the next level starts.
#pragma once

#include <utility>

namespace ryx::object::detail {

template <class Call>
[[gnu::noinline]] decltype(auto) OutOfLine(Call&& call) {
  return std::forward<Call>(call)();
}

}  // namespace ryx::object::detail
