#include <ryx/object.h>

#include "capi/detail/handle.hpp"

using ryx::object::capi::detail::Slot;
using ryx::object::capi::detail::SlotOf;

extern "C" int64_t RyxObjectReferenceCount(RyxObject const* object) noexcept {
  if (object == nullptr) {
    return 0;
  }
  // Counted through a temporary owner, which an empty slot does not gain:
  // that makes the answer -1 for a slot holding no value.
  Slot const extra = SlotOf(object);
  return static_cast<int64_t>(extra.use_count()) - 1;
}
