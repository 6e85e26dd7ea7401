#include "fixtures.h"

#include <ryx/object.hpp>

#include <memory>
#include <string>

namespace {

using ryx::object::Object;

class Unregistered : public Object {
 public:
  Unregistered() : Object(ryx::hash::MurmurThree32::MakeData("ryx.tests.Unregistered")) {}
  void Set(Object const& /*other*/) override {}
  bool EqualTo(Object const& /*other*/) const override { return false; }
};

}  // namespace

extern "C" RyxObject* MakeStringWithNul(void) {
  return ryx::object::Convert(std::make_shared<ryx::object::String>(std::string("a\0b", 3)));
}

extern "C" RyxObject* MakeUnregisteredValue(void) {
  return ryx::object::Convert(std::make_shared<Unregistered>());
}

extern "C" RyxObject* MakeEmptyHandle(void) {
  // The handle's layout: a heap-allocated std::shared_ptr<Object>.
  return reinterpret_cast<RyxObject*>(new std::shared_ptr<Object>());
}

extern "C" RyxObject* MakeArrayRequiring(uint32_t type) {
  ryx::hash::MurmurThree32 const element(type);
  return ryx::object::Convert(
      ryx::object::Required(ryx::object::Object::TypeIdOf<ryx::object::Array<Object>>(),
                            {ryx::object::Required(element)})
          .Make());
}

extern "C" RyxObject* MakeDictionaryRequiring(uint32_t type) {
  ryx::hash::MurmurThree32 const element(type);
  return ryx::object::Convert(
      ryx::object::Required(ryx::object::Object::TypeIdOf<ryx::object::Dictionary<Object>>(),
                            {ryx::object::Required(element)})
          .Make());
}

extern "C" RyxObject* MakeDefaultEnum(void) {
  return ryx::object::Convert(
      ryx::object::Required(ryx::object::Object::TypeIdOf<ryx::object::Enum<Object>>()).Make());
}
