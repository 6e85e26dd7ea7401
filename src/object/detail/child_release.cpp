#include "object/detail/child_release.hpp"

#include <ryx/object/array.hpp>
#include <ryx/object/dictionary.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace ryx::object::detail {

namespace {

// Makes room for `count` more objects, growing geometrically as push_back
// would; false when the stack cannot grow.
bool Room(ChildRelease::Pending& pending, std::size_t count) noexcept {
  if (pending.capacity() - pending.size() < count) {
    try {
      pending.reserve(std::max(pending.size() + count, 2 * pending.capacity()));
    } catch (...) {
      return false;
    }
  }
  return true;
}

}  // namespace

void ChildRelease::ReleaseChildren(Object& container) noexcept {
  Pending pending;
  TakeChildren(container, pending);
  Release(pending);
}

void ChildRelease::Release(Pending& pending) noexcept {
  while (!pending.empty()) {
    std::shared_ptr<Object> child = std::move(pending.back());
    pending.pop_back();
    // Only the last owner may empty a container; a shared one lives on intact.
    if (child && child.use_count() == 1) {
      TakeChildren(*child, pending);
    }
    // `child` dies here with no children left, so its destructor is shallow.
  }
}

void ChildRelease::TakeChildren(Object& object, Pending& pending) noexcept {
  if (object.Is<Array<Object>>()) {
    auto& objects = object.As<Array<Object>>().objects;
    if (Room(pending, objects.size())) {
      std::move(objects.begin(), objects.end(), std::back_inserter(pending));
    }
    // Without room the children are released in place, each through its own
    // destructor: correct, only recursive.
    objects.clear();
  } else if (object.Is<Dictionary<Object>>()) {
    auto& properties = object.As<Dictionary<Object>>().properties;
    if (Room(pending, properties.size())) {
      for (auto& entry : properties) {
        pending.push_back(std::move(entry.second));
      }
    }
    properties.clear();
  }
}

}  // namespace ryx::object::detail
