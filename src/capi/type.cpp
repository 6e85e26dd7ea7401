#include <ryx/object.h>

#include "capi/detail/handle.hpp"

extern "C" uint32_t RyxObjectType(RyxObject const* object) noexcept {
  return object != nullptr ? ryx::object::capi::detail::SlotOf(object)->GetType().GetValue() : 0u;
}
