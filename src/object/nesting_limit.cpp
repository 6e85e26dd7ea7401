#include <ryx/object/nesting_limit.hpp>

#include <atomic>
#include <cstdint>
#include <limits>
#include <string>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/thread_stack.hpp"

namespace ryx::object {

namespace {

std::atomic<std::size_t> limit{DefaultNestingLimit};

// Each operation counts apart: a schema nests under its container, not under
// the container's parents, and a comparison may run inside a save.
thread_local std::size_t depths[4] = {};

// The calling thread's stack, found on the first check.
struct Stack {
  // A level whose frame lies below this address leaves less than the reserve.
  // Until the stack is found it is the top of the address space, so that the
  // first check finds it; on a stack that cannot be found it is 0.
  std::uintptr_t floor = std::numeric_limits<std::uintptr_t>::max();
  detail::ThreadStack bounds;
  bool found = false;
  // The frame of the outermost level that reserved stack for a later pass,
  // and the stack reserved below it by all levels entered since.
  std::uintptr_t base = 0;
  std::size_t later = 0;
};
thread_local Stack stack;

// Whether `frame` lies on the thread's own stack, which it finds first.
bool IsOnThreadStack(std::uintptr_t frame) {
  if (!stack.found) {
    stack.bounds = detail::FindThreadStack();
    stack.found = true;
    std::uintptr_t const size = stack.bounds.high - stack.bounds.low;
    if (stack.bounds.high == 0) {
      stack.floor = 0;
    } else {
      stack.floor =
          size > detail::StackReserve ? stack.bounds.low + detail::StackReserve : stack.bounds.high;
    }
  }
  return frame >= stack.bounds.low && frame < stack.bounds.high;
}

// Whether a level with this frame would leave less than the reserve.
[[gnu::noinline]] bool LeavesTooLittle(std::uintptr_t frame) {
  return IsOnThreadStack(frame) && frame < stack.floor;
}

std::uintptr_t CurrentFrame() noexcept {
  return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

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

[[noreturn, gnu::noinline, gnu::cold]] void ThrowTooDeep(detail::Nesting nesting,
                                                         std::size_t levels) {
  throw NestingLimitError(std::string(WhatIsNested(nesting)) +
                          " are nested deeper than the nesting limit of " + std::to_string(levels) +
                          " levels");
}

[[noreturn, gnu::noinline, gnu::cold]] void ThrowOutOfStack(detail::Nesting nesting,
                                                            std::size_t level) {
  throw NestingLimitError(std::string(WhatIsNested(nesting)) +
                          " are nested deeper than the stack of this thread allows: level " +
                          std::to_string(level) + " would leave less than " +
                          std::to_string(detail::StackReserve) + " bytes free");
}

}  // namespace

std::size_t GetNestingLimit() noexcept { return limit.load(std::memory_order_relaxed); }

void SetNestingLimit(std::size_t levels) noexcept {
  limit.store(levels != 0 ? levels : 1, std::memory_order_relaxed);
}

namespace detail {

NestingGuard::NestingGuard(Nesting nesting, std::size_t laterStack)
    : depth(depths[static_cast<int>(nesting)]), laterStack(laterStack), nesting(nesting) {
  std::size_t const levels = GetNestingLimit();
  if (depth >= levels) {
    ThrowTooDeep(nesting, levels);
  }
  // The common case costs one thread-local read and one compare.
  std::uintptr_t const frame = CurrentFrame();
  if (frame < stack.floor && LeavesTooLittle(frame)) {
    ThrowOutOfStack(nesting, depth + 1);
  }
  if (laterStack != 0) {
    std::uintptr_t const base = stack.later == 0 ? frame : stack.base;
    std::size_t const later = stack.later + laterStack;
    if ((base < stack.floor || base - stack.floor < later) && IsOnThreadStack(base)) {
      ThrowOutOfStack(nesting, depth + 1);
    }
    stack.base = base;
    stack.later = later;
  }
  ++depth;
}

void NestingGuard::ReleaseLaterStack(std::size_t bytes) noexcept { stack.later -= bytes; }

void NestingGuard::RefuseDeeperChildren() const {
  std::size_t const levels = GetNestingLimit();
  if (depth >= levels) {
    ThrowTooDeep(nesting, levels);
  }
}

std::size_t StackLeft() {
  std::uintptr_t const frame = CurrentFrame();
  if (!IsOnThreadStack(frame)) {
    return std::numeric_limits<std::size_t>::max();
  }
  return frame > stack.floor ? frame - stack.floor : 0;
}

}  // namespace detail

}  // namespace ryx::object
