// Any bytes given to FromJson load or throw a std::exception; anything else
// (a crash, a sanitizer report, a leak, a hang) is a failure.
#include <ryx/object.hpp>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  try {
    ryx::object::FromJson(std::string_view(reinterpret_cast<char const*>(data), size));
  } catch (std::exception const&) {
  }
  return 0;
}
