// Releases the children of a dying value without recursion.
//
// Destroying the last owner of a container destroys its children, which may be
// containers in turn: a naive destructor recurses once per level and overflows
// the stack on deeply nested values. Instead, a dying container hands its
// children to Release, which keeps them on a heap stack and, for each child it
// is the last owner of, moves that child's own children onto the stack before
// letting it go. Every destructor then runs on a value whose children are
// gone or still owned by the stack, so it does not recurse. Arrays and
// dictionaries give up their children directly; any other value (a record of
// <ryx/object/record.hpp>) by walking them (Begin), which keeps each child
// alive on the stack while the value dies. Releasing never depends on memory:
// when the stack cannot grow, the children that do not fit are released in
// place, recursively.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <vector>

namespace ryx::object::detail {

struct RYX_OBJECT_EXPORT ChildRelease {
  using Pending = std::vector<std::shared_ptr<Object>>;

  // Empties `container` (an array or a dictionary), releasing its children.
  static void ReleaseChildren(Object& container) noexcept;
  // Releases every object of `pending` and leaves it empty.
  static void Release(Pending& pending) noexcept;
  // Releases `child` and leaves it null; its descendants go without recursion
  // when it was their last owner.
  static void Release(std::shared_ptr<Object>& child) noexcept;

private:
  // Moves the children of a value that is about to die onto `pending`, or
  // releases them in place when `pending` cannot grow; an array or a
  // dictionary is left empty.
  static void TakeChildren(Object& object, Pending& pending) noexcept;
};

}  // namespace ryx::object::detail
