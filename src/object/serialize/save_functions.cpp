#include <ryx/object/serialize/save_functions.hpp>

#include "object/serialize/print_functions.hpp"

namespace ryx::object {

std::ostream& operator<<(std::ostream& os, SaveFunctions const& functions) {
  return detail::PrintFunctions(os, functions);
}

}  // namespace ryx::object
