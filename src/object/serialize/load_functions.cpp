#include <ryx/object/serialize/load_functions.hpp>

#include "object/serialize/print_functions.hpp"

namespace ryx::object {

// The same form as the save tuple's, so both can be read side by side.
std::ostream& operator<<(std::ostream& os, LoadFunctions const& functions) {
  return detail::PrintFunctions(os, functions);
}

}  // namespace ryx::object
