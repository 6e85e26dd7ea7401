#include <ryx/type/demangle.hpp>

#include <cxxabi.h>

#include <cstdlib>
#include <memory>

namespace ryx::type {

std::string Demangle(char const* mangled) {
  if (mangled == nullptr) {
    return std::string();
  }
  int status = 0;
  std::unique_ptr<char, void (*)(void*)> const demangled(
      abi::__cxa_demangle(mangled, nullptr, nullptr, &status), &std::free);
  if (status != 0 || !demangled) {
    return std::string(mangled);
  }
  return std::string(demangled.get());
}

}  // namespace ryx::type
