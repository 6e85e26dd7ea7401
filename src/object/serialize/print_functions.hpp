// Prints which of the XML, JSON and binary functions of a tuple are set, as
// {"xml":B,"json":B,"binary":B}. Shared by the save and load tuples.
#pragma once

#include <ostream>
#include <tuple>

namespace ryx::object::detail {

template <class Tuple>
std::ostream& PrintFunctions(std::ostream& os, Tuple const& functions) {
  auto const set = [](auto const& function) { return function ? "true" : "false"; };
  return os << "{\"xml\":" << set(std::get<0>(functions)) << ",\"json\":"
            << set(std::get<1>(functions)) << ",\"binary\":" << set(std::get<2>(functions)) << '}';
}

}  // namespace ryx::object::detail
