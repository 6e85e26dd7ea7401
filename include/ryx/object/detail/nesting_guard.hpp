// detail::NestingGuard: one level of nesting of a recursive operation (save
// and load of values, of schemas, deep copies, comparisons), counted per
// operation and thread for as long as the guard lives.
//
// A level is refused when it would be deeper than the nesting limit, or when
// it would leave less than StackReserve bytes of the thread's stack below it
// (detail/thread_stack.hpp), so that a deep value never overflows a small
// stack: the operation throws NestingLimitError instead.
#pragma once

#include <ryx/object/export.hpp>

#include <cstddef>

namespace ryx::object::detail {

enum class Nesting { value, schema, copy, comparison };

class RYX_OBJECT_EXPORT NestingGuard {
 public:
  // Throws NestingLimitError, counting nothing, when the new level would be
  // deeper than GetNestingLimit() or too deep for the stack left, and
  // std::bad_alloc when the thread's stack cannot be looked up for want of
  // memory (the first level on a thread looks it up).
  //
  // `laterStack` is stack that a pass over the operation's result needs per
  // level once the recursion has returned (the XML printer walks the finished
  // document as deep as the values were). The level is then also refused
  // unless the frame of the outermost such level leaves room below it for
  // that pass over every level entered so far.
  explicit NestingGuard(Nesting nesting, std::size_t laterStack = 0);
  NestingGuard(NestingGuard const&) = delete;
  NestingGuard& operator=(NestingGuard const&) = delete;
  ~NestingGuard() {
    --depth;
    if (laterStack != 0) {
      ReleaseLaterStack(laterStack);
    }
  }

  // Throws NestingLimitError, as a guard of their own would, when children of
  // this level would be deeper than the limit: for a walk that enters leaf
  // values, which recurse no further, without a guard each.
  void RefuseDeeperChildren() const;

 private:
  static void ReleaseLaterStack(std::size_t bytes) noexcept;

  std::size_t& depth;
  std::size_t const laterStack;
  Nesting const nesting;
};

// The bytes of the calling thread's stack left above the reserve, 0 when
// none, or the largest size_t on a stack the thread library did not make
// (a coroutine's, say), whose size the library cannot know.
RYX_OBJECT_EXPORT std::size_t StackLeft();

}  // namespace ryx::object::detail
