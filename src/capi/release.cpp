#include <ryx/object.h>

#include "capi/detail/handle.hpp"

extern "C" void RyxObjectRelease(RyxObject* object) noexcept {
  ryx::object::capi::detail::FreeHandle(object);
}
