// The steps that every container function of the C interface shares: the
// tests of the container handle (null, then kind), a reference of the call's
// own so the container outlives the call, and the answer to an exception.
#pragma once

#include <ryx/object.h>
#include <ryx/object/object.hpp>

#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <memory>
#include <stdexcept>

namespace ryx::object::capi::detail {

// The container of `handle`, or null after logging the null-handle or the
// wrong-type message; `*status` then tells which.
template <class Container>
std::shared_ptr<Object> CheckedContainer(char const* function, RyxObject* handle,
                                         RyxObjectStatus* status) noexcept {
  if (handle == nullptr) {
    *status = ReportNullParameter(function, "object");
    return nullptr;
  }
  std::shared_ptr<Object> held = SlotOf(handle);
  if (!held->Is<Container>()) {
    *status = ReportIncorrectType(function, Object::TypeIdOf<Container>(), *held);
    return nullptr;
  }
  return held;
}

// The container of `handle`, or null without a word for a null handle or one
// of another kind.
template <class Container>
std::shared_ptr<Object> QuietContainer(RyxObject* handle) noexcept {
  if (handle == nullptr || !SlotOf(handle)->Is<Container>()) {
    return nullptr;
  }
  return SlotOf(handle);
}

// Runs `operation` on the checked container. An exception is logged as
// "<function>: <action>: <what>" (or the generic form) and answered with
// `outOfRange` for a std::out_of_range and RyxObjectStatusFailure otherwise.
template <class Container, class Operation>
RyxObjectStatus CallOnContainer(char const* function, char const* action, RyxObject* handle,
                                RyxObjectStatus outOfRange, Operation&& operation) noexcept {
  RyxObjectStatus status = RyxObjectStatusSuccess;
  std::shared_ptr<Object> const held = CheckedContainer<Container>(function, handle, &status);
  if (!held) {
    return status;
  }
  try {
    operation(held->As<Container>());
    return RyxObjectStatusSuccess;
  } catch (std::out_of_range const&) {
    ReportCurrentException(function, action);
    return outOfRange;
  } catch (...) {
    ReportCurrentException(function, action);
    return RyxObjectStatusFailure;
  }
}

// The value `read` gives of the checked container, or `failed` after logging.
template <class Container, class Result, class Read>
Result ReadContainer(char const* function, RyxObject* handle, Result failed, Read&& read) noexcept {
  RyxObjectStatus status = RyxObjectStatusSuccess;
  std::shared_ptr<Object> const held = CheckedContainer<Container>(function, handle, &status);
  return held ? read(held->As<Container>()) : failed;
}

}  // namespace ryx::object::capi::detail
