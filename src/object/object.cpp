#include <ryx/object/object.hpp>

#include <ryx/object/bad_cast.hpp>
#include <ryx/object/registry/get.hpp>
#include <ryx/object/required.hpp>

#include "object/detail/copier.hpp"
#include "object/detail/type_name.hpp"

#include <ostream>
#include <sstream>
#include <utility>

namespace ryx::object {

namespace {

// The schema of every value that is not a container.
Required const DefaultRequired;

}  // namespace

namespace detail {

char const* TypeNameOrNotRegistered(hash::MurmurThree32 const& id) {
  char const* const name = Object::TypeName(id);
  return name != nullptr ? name : NotRegistered;
}

}  // namespace detail

Object::~Object() = default;

container::ConstIterator Object::Begin() const { return container::ConstIterator(); }
container::Iterator Object::Begin() { return container::Iterator(); }
container::ConstIterator Object::End() const { return container::ConstIterator(); }
container::Iterator Object::End() { return container::Iterator(); }

Required const& Object::GetRequired() const { return DefaultRequired; }

void Object::ThrowBadCast(hash::MurmurThree32 from, char const* to) {
  std::ostringstream message;
  message << "Failed to cast the runtime object from '" << detail::TypeNameOrNotRegistered(from)
          << "' to a '" << to << "'";
  throw BadCast(message.str());
}

std::shared_ptr<Object> Object::Copy(Object const& source) {
  return detail::Copier().Copy(source);
}

std::shared_ptr<Object> Object::Copy(std::shared_ptr<Object const> source) {
  return source ? Copy(*source) : nullptr;
}

char const* Object::TypeName(hash::MurmurThree32 const& id) {
  auto const map = registry::Get().GetMap();
  auto const found = map->find(id);
  return found != map->end() ? found->second.GetTypeName() : nullptr;
}

std::shared_ptr<Object> Object::Make(hash::MurmurThree32 const& id) {
  auto const map = registry::Get().GetMap();
  auto const found = map->find(id);
  if (found == map->end()) {
    return nullptr;
  }
  // Called under the lock: a construct function must not use the registry.
  registry::Info::ConstructFunction const construct = found->second.GetConstructFunction();
  return construct ? construct() : nullptr;
}

std::function<std::shared_ptr<Object>()> Object::GetConstructFunction(hash::MurmurThree32 const& id) {
  auto const map = registry::Get().GetMap();
  auto const found = map->find(id);
  return found != map->end() ? found->second.GetConstructFunction() : nullptr;
}

SaveFunctions Object::GetSaveFunctions(hash::MurmurThree32 const& id) {
  auto const map = registry::Get().GetMap();
  auto const found = map->find(id);
  return found != map->end() ? found->second.GetSaveFunctions() : SaveFunctions();
}

LoadFunctions Object::GetLoadFunctions(hash::MurmurThree32 const& id) {
  auto const map = registry::Get().GetMap();
  auto const found = map->find(id);
  return found != map->end() ? found->second.GetLoadFunctions() : LoadFunctions();
}

std::ostream& operator<<(std::ostream& os, Object const& object) {
  return os << "{\"type\":\"" << detail::TypeNameOrNotRegistered(object.GetType()) << "\",\"id\":"
            << object.GetType() << '}';
}

}  // namespace ryx::object
