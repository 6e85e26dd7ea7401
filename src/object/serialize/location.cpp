#include <ryx/object/serialize/location.hpp>

namespace ryx::object {

Located::~Located() = default;

Location const* FindLocation(std::exception const& error) noexcept {
  auto const* const located = dynamic_cast<Located const*>(&error);
  return located != nullptr ? &located->GetLocation() : nullptr;
}

}  // namespace ryx::object
