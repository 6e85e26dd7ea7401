#include <ryx/capi/peek.hpp>

#include "capi/detail/handle.hpp"

#include <stdexcept>

namespace ryx::object {

namespace {

template <class Pointer>
Pointer&& RefuseNull(Pointer&& pointer) {
  if (!pointer) {
    throw std::invalid_argument("The 'object' parameter was a NULL pointer");
  }
  return std::forward<Pointer>(pointer);
}

}  // namespace

std::shared_ptr<Object> const& Peek(std::shared_ptr<Object> const& object) {
  return RefuseNull(object);
}

std::shared_ptr<Object const> const& Peek(std::shared_ptr<Object const> const& object) {
  return RefuseNull(object);
}

Object& Peek(RyxObject* handle) { return *capi::detail::SlotOf(RefuseNull(handle)); }

Object const& Peek(RyxObject const* handle) { return *capi::detail::SlotOf(RefuseNull(handle)); }

}  // namespace ryx::object
