#include <ryx/object/serialize/nesting_limit.hpp>

#include <atomic>
#include <string>

#include "object/serialize/detail/nesting.hpp"

namespace ryx::object {

namespace {

std::atomic<std::size_t> limit{DefaultNestingLimit};

// Values and schemas are counted apart: a schema nests under its container,
// not under the container's parents.
thread_local std::size_t valueDepth = 0;
thread_local std::size_t schemaDepth = 0;

}  // namespace

std::size_t GetNestingLimit() noexcept { return limit.load(std::memory_order_relaxed); }

void SetNestingLimit(std::size_t levels) noexcept {
  limit.store(levels != 0 ? levels : 1, std::memory_order_relaxed);
}

namespace detail {

NestingGuard::NestingGuard(Nesting nesting)
    : depth(nesting == Nesting::value ? valueDepth : schemaDepth) {
  std::size_t const levels = GetNestingLimit();
  if (depth >= levels) {
    throw NestingLimitError(std::string(nesting == Nesting::value ? "Values" : "Schemas") +
                            " are nested deeper than the nesting limit of " +
                            std::to_string(levels) + " levels");
  }
  ++depth;
}

}  // namespace detail

}  // namespace ryx::object
