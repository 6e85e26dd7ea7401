#include <ryx/object.h>

#include <cstddef>
#include <iterator>

namespace {

// Indexed by RyxObjectStatus.
constexpr char const* Messages[] = {
    "The RYX API operation was a success",
    "A general failure occurred, check the logging file for more information",
    "A parameter for the RYX API call was invalid, check the logging file for more information",
    "An object was the incorrect type for the RYX API",
    "An argument was out of range in the API call",
    "Failed to allocate memory insdie the API function",
};

}  // namespace

extern "C" char const* RyxObjectStatusMessage(int status) noexcept {
  if (status < 0) {
    return "The status was negative";
  }
  if (static_cast<std::size_t>(status) >= std::size(Messages)) {
    return "The status was greater than the number of status error messages";
  }
  return Messages[status];
}
