// How the JSON reader and writer get their allocator objects.
//
// rapidjson makes its own allocator object with new the first time a stack or
// memory pool grows. A stateless allocator (the C library's, which every stack
// and pool here uses) needs no object of its own: one shared instance serves
// them all. Besides sparing an allocation, this lets cereal's JSON writer open
// its root object without one that can fail: cereal marks the object open
// before the writer's stack first grows, so a failure there would leave the
// archive closing an object the writer never opened, from a destructor that
// must not throw.
#pragma once

#include <type_traits>

namespace cereal::archive::detail {

template <class Allocator>
Allocator* NewJsonAllocator() {
  if constexpr (std::is_empty_v<Allocator>) {
    static Allocator shared;
    return &shared;
  } else {
    return new Allocator();
  }
}

template <class Allocator>
void DeleteJsonAllocator(Allocator* allocator) noexcept {
  if constexpr (!std::is_empty_v<Allocator>) {
    delete allocator;
  }
}

}  // namespace cereal::archive::detail
