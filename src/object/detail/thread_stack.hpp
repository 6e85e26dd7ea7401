// detail::StackReserve and FindThreadStack: the stack of the calling thread,
// as the recursive operations measure it.
//
// A recursive operation refuses to go a level deeper once less than
// StackReserve bytes would be left below it. The reserve is what the deepest
// level may still need after its check: the work on a leaf value (number
// formatting, an allocation), throwing and unwinding the exception, and the
// dynamic linker binding a function on its first call, which saves the whole
// register file. Measured on x86-64, that came to about 6 KiB optimised and
// 7 KiB with AddressSanitizer. The reserve keeps five times that, for leaf
// work not measured and for the renderer's frames over nested template
// sections; AddressSanitizer's red zones make every frame larger, so it keeps
// twice as much again there.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ryx::object::detail {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr std::size_t StackReserve = 64 * 1024;
#else
inline constexpr std::size_t StackReserve = 32 * 1024;
#endif

// The addresses of the calling thread's stack, [low, high).
struct ThreadStack {
  std::uintptr_t low = 0;
  std::uintptr_t high = 0;
};

// The stack the thread library gave the calling thread; both bounds 0 when it
// cannot tell. Throws std::bad_alloc when it has no memory to look it up.
ThreadStack FindThreadStack();

}  // namespace ryx::object::detail
