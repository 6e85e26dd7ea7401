// ryx::type::Strings<E>: the process-wide table from the values of the
// enumeration E to their names.
//
// The library that owns E defines GetMap() for it, once, in one source file, so
// that every caller sees the same map.
#pragma once

#include <map>
#include <string>

namespace ryx::type {

template <class E>
struct Strings {
  static std::map<unsigned long, std::string> const& GetMap();
};

}  // namespace ryx::type
