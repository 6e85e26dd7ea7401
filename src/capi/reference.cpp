#include <ryx/object.h>

#include "capi/detail/handle.hpp"

#include <new>

using ryx::object::capi::detail::Slot;
using ryx::object::capi::detail::SlotOf;

extern "C" RyxObject* RyxObjectReference(RyxObject const* object) noexcept {
  if (object == nullptr) {
    return nullptr;
  }
  // The non-throwing allocation: on failure the count is left as it was.
  return reinterpret_cast<RyxObject*>(new (std::nothrow) Slot(SlotOf(object)));
}
