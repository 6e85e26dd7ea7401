#include <ryx/object.h>

#include "capi/detail/handle.hpp"

extern "C" char const* RyxObjectTypeName(RyxObject const* object) noexcept {
  if (object == nullptr) {
    return nullptr;
  }
  return ryx::object::Object::TypeName(ryx::object::capi::detail::SlotOf(object)->GetType());
}
