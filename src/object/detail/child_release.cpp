#include "object/detail/child_release.hpp"

#include <ryx/object/array.hpp>
#include <ryx/object/dictionary.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace ryx::object::detail {

namespace {

// Room for `count` more objects, growing geometrically as push_back would.
void MakeRoom(ChildRelease::Pending& pending, std::size_t count) {
  if (pending.capacity() - pending.size() < count) {
    pending.reserve(std::max(pending.size() + count, 2 * pending.capacity()));
  }
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
  // If the stack cannot grow, the child keeps its children and releases them
  // through its own destructor: correct, only recursive.
  try {
    if (object.Is<Array<Object>>()) {
      auto& objects = object.As<Array<Object>>().objects;
      MakeRoom(pending, objects.size());
      std::move(objects.begin(), objects.end(), std::back_inserter(pending));
      objects.clear();
    } else if (object.Is<Dictionary<Object>>()) {
      auto& properties = object.As<Dictionary<Object>>().properties;
      MakeRoom(pending, properties.size());
      for (auto& entry : properties) {
        pending.push_back(std::move(entry.second));
      }
      properties.clear();
    }
  } catch (...) {
  }
}

}  // namespace ryx::object::detail
