#include <ryx/capi/convert.hpp>

#include "capi/detail/handle.hpp"

#include <stdexcept>

namespace ryx::object {

namespace {

[[noreturn]] void ThrowNullObject() {
  throw std::invalid_argument("The 'object' parameter was a NULL pointer");
}

}  // namespace

RyxObject* Convert(std::shared_ptr<Object> object) {
  if (!object) {
    ThrowNullObject();
  }
  return capi::detail::MakeHandle(std::move(object));
}

RyxObject const* Convert(std::shared_ptr<Object const> object) {
  return Convert(std::const_pointer_cast<Object>(std::move(object)));
}

std::shared_ptr<Object> Convert(RyxObject* handle) {
  if (handle == nullptr) {
    ThrowNullObject();
  }
  return capi::detail::Consume(handle);
}

std::shared_ptr<Object const> Convert(RyxObject const* handle) {
  return Convert(const_cast<RyxObject*>(handle));
}

}  // namespace ryx::object
