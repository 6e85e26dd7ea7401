#include <ryx/object/registry/get.hpp>

namespace ryx::object::registry {

Registry& Get() {
  // Built on first use, so it exists before the first registration and is
  // destroyed after the last deregistration.
  static Registry registry;
  return registry;
}

}  // namespace ryx::object::registry
