// ryx::type::Demangle: the readable form of a mangled C++ name.
#pragma once

#include <ryx/type/export.hpp>

#include <string>

namespace ryx::type {

// Returns the demangled name, or `mangled` itself when it cannot be demangled
// (an empty string for a null pointer).
RYX_TYPE_EXPORT std::string Demangle(char const* mangled);

}  // namespace ryx::type
