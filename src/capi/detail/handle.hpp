// The representation of a C handle: a RyxObject* is the address of a
// std::shared_ptr<Object>. An owned handle is one allocated on its own; a
// borrowed one is the address of a container's own slot, which is why the
// handle must stay exactly a std::shared_ptr<Object> and nothing more.
#pragma once

#include <ryx/object.h>
#include <ryx/object/object.hpp>

#include <memory>
#include <utility>

namespace ryx::object::capi::detail {

using Slot = std::shared_ptr<Object>;

inline Slot& SlotOf(RyxObject* handle) noexcept { return *reinterpret_cast<Slot*>(handle); }
inline Slot const& SlotOf(RyxObject const* handle) noexcept {
  return *reinterpret_cast<Slot const*>(handle);
}

// The borrowed handle of a slot inside a container.
inline RyxObject* HandleOf(Slot& slot) noexcept { return reinterpret_cast<RyxObject*>(&slot); }

// A new owned handle; throws std::bad_alloc.
inline RyxObject* MakeHandle(Slot object) {
  return reinterpret_cast<RyxObject*>(new Slot(std::move(object)));
}

inline void FreeHandle(RyxObject* handle) noexcept { delete reinterpret_cast<Slot*>(handle); }

// Takes the value out of a non-null owned handle and frees the handle. Moving
// instead of copying spares the two atomic count changes a copy would cost.
inline Slot Consume(RyxObject* handle) noexcept {
  Slot object = std::move(SlotOf(handle));
  FreeHandle(handle);
  return object;
}

}  // namespace ryx::object::capi::detail
