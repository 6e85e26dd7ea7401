// detail::PrefetchAhead: asks the processor for the memory of an element a few
// places ahead of the one a walk over a sequence of values is at.
//
// Values are separate heap blocks, so walking a large value waits on memory
// at almost every step. Blocks are usually laid out in the order they were
// made, each value followed by its descendants (a loaded value always is, and
// so is one built child by child), so the bytes from an element up to its
// next sibling hold the element's whole subtree. Fetching that span ahead of
// use overlaps the waits. It is only a hint: when siblings lie apart or out of
// order, only the element's own first line is fetched.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <ryx/object/fwd.hpp>

namespace ryx::object::detail {

// Far enough ahead to cover the latency of one element's subtree, near enough
// that the fetched lines are still cached when the walk arrives.
inline constexpr std::size_t PrefetchDistance = 3;
// Spans longer than this are not taken for one element's subtree.
inline constexpr std::uintptr_t PrefetchSpanLimit = 4096;

// Always inlined: as a call, the compiler would find it free of effects and drop it.
[[gnu::always_inline]] inline void PrefetchSpan(void const* element, void const* next) noexcept {
#if defined(__GNUC__)
  constexpr std::uintptr_t Line = 64;
  std::uintptr_t from = reinterpret_cast<std::uintptr_t>(element);
  std::uintptr_t to = reinterpret_cast<std::uintptr_t>(next);
  if (from == 0) {
    return;
  }
  if (to <= from || to - from > PrefetchSpanLimit) {
    to = from + 1;
  }
  for (; from < to; from += Line) {
    __builtin_prefetch(reinterpret_cast<void const*>(from));
  }
#else
  static_cast<void>(element);
  static_cast<void>(next);
#endif
}

// For a walk standing at `index` of `objects`.
[[gnu::always_inline]] inline void PrefetchAhead(
    std::vector<std::shared_ptr<Object>> const& objects, std::size_t index) noexcept {
  std::size_t const ahead = index + PrefetchDistance;
  if (ahead < objects.size()) {
    void const* const next = ahead + 1 < objects.size() ? objects[ahead + 1].get() : nullptr;
    PrefetchSpan(objects[ahead].get(), next);
  }
}

}  // namespace ryx::object::detail
