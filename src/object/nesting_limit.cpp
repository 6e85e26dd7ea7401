#include <ryx/object/nesting_limit.hpp>

#include <atomic>
#include <string>

#include "object/detail/nesting_guard.hpp"

namespace ryx::object {

namespace {

std::atomic<std::size_t> limit{DefaultNestingLimit};

// Each operation counts apart: a schema nests under its container, not under
// the container's parents, and a comparison may run inside a save.
thread_local std::size_t depths[4] = {};

char const* WhatIsNested(detail::Nesting nesting) {
  switch (nesting) {
    case detail::Nesting::value:
      return "Values";
    case detail::Nesting::schema:
      return "Schemas";
    case detail::Nesting::copy:
      return "Values to copy";
    case detail::Nesting::comparison:
      return "Values to compare";
  }
  return "Values";
}

}  // namespace

std::size_t GetNestingLimit() noexcept { return limit.load(std::memory_order_relaxed); }

void SetNestingLimit(std::size_t levels) noexcept {
  limit.store(levels != 0 ? levels : 1, std::memory_order_relaxed);
}

namespace detail {

NestingGuard::NestingGuard(Nesting nesting)
    : depth(depths[static_cast<int>(nesting)]) {
  std::size_t const levels = GetNestingLimit();
  if (depth >= levels) {
    throw NestingLimitError(std::string(WhatIsNested(nesting)) +
                            " are nested deeper than the nesting limit of " +
                            std::to_string(levels) + " levels");
  }
  ++depth;
}

}  // namespace detail

}  // namespace ryx::object
