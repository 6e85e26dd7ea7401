// The nesting limit of the recursive operations: Save and Load, deep copies
// (Set(Object const&) of containers, Object::Copy, copies of schemas) and
// comparisons (EqualTo, == of schemas).
//
// Every value such an operation enters is one level below the value holding
// it (the value passed in is level 1), and every schema one level below the
// schema holding it (a container's own schema is level 1). A value or schema
// deeper than the limit makes the operation throw NestingLimitError, which
// keeps hostile documents and deep values from exhausting the stack; the value
// operated on is left as it was. The limit is process-wide; each thread counts
// its own depth. Destruction is never limited: containers release their
// children iteratively.
//
// The stack is measured too. A level that would leave less than a reserve of
// the calling thread's stack (32 KiB; 64 KiB under AddressSanitizer) is
// refused with NestingLimitError as well, whatever the limit, so no depth
// overflows a small thread stack: the operations work at any depth on stacks
// of 128 KiB and more, going as deep as the stack allows. A stack the thread
// library did not make (a coroutine's, say) is not measured.
#pragma once

#include <ryx/object/export.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace ryx::object {

inline constexpr std::size_t DefaultNestingLimit = 1000;

class RYX_OBJECT_EXPORT NestingLimitError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The current limit; DefaultNestingLimit until changed.
RYX_OBJECT_EXPORT std::size_t GetNestingLimit() noexcept;
// Sets the limit for every thread; 0 is taken as 1.
RYX_OBJECT_EXPORT void SetNestingLimit(std::size_t levels) noexcept;

}  // namespace ryx::object
