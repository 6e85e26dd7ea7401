// The steps that the C functions handing out documents share: running the
// operation with exceptions turned into one message and a status, and handing
// a result out as a malloc'ed block.
#pragma once

#include <ryx/object.h>
#include <ryx/object/object.hpp>

#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace ryx::object::capi::detail {

// The value of a borrowed handle; null for a null handle.
inline std::shared_ptr<Object const> ValueOrNull(RyxObject const* object) noexcept {
  return object != nullptr ? SlotOf(object) : nullptr;
}

// Runs `operation`, which writes its outputs only once nothing can fail any
// more. An exception is logged as "<function>: <action>: <what>" and answered
// with RyxObjectStatusAllocationFailure for std::bad_alloc and
// RyxObjectStatusFailure for anything else.
template <class Operation>
RyxObjectStatus CallReporting(char const* function, char const* action,
                              Operation&& operation) noexcept {
  try {
    operation();
    return RyxObjectStatusSuccess;
  } catch (std::bad_alloc const&) {
    ReportCurrentException(function, action);
    return RyxObjectStatusAllocationFailure;
  } catch (...) {
    ReportCurrentException(function, action);
    return RyxObjectStatusFailure;
  }
}

// Sets `*data` to a malloc'ed copy of `bytes` followed by a NUL, which the
// caller frees with free(), and `*size` to their number. Throws std::bad_alloc
// and then writes neither.
inline void HandOut(std::string const& bytes, char** data, std::size_t* size) {
  auto* const block = static_cast<char*>(std::malloc(bytes.size() + 1));
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  bytes.copy(block, bytes.size());
  block[bytes.size()] = '\0';
  *data = block;
  *size = bytes.size();
}

}  // namespace ryx::object::capi::detail
