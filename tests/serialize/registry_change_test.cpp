#include <ryx/object.hpp>
#include <ryx/object/registry/get.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;

// Saving and loading keep what they looked up in the registry between values;
// a change of the registry must still be seen by the next value.
TEST(RegistryChange, ARemovedTypeIsNeitherSavedNorLoadedUntilItIsRegisteredAgain) {
  registry::Registry& types = registry::Get();
  auto const id = Object::TypeIdOf<Int32>();
  registry::Info const record = types.GetMap()->at(id);
  std::shared_ptr<Object const> const value = std::make_shared<Int32>(7);
  std::string const json = ToJson(value);
  std::string const bytes = ToBinary(value);

  types.Deregister(id);
  EXPECT_THROW(ToJson(value), std::logic_error);
  EXPECT_EQ(FromJson(json), nullptr);
  EXPECT_THROW(FromBinary(bytes), std::runtime_error);

  types.Register(record);
  EXPECT_EQ(ToJson(value), json);
  ASSERT_NE(FromBinary(bytes), nullptr);
  EXPECT_TRUE(FromBinary(bytes)->EqualTo(*value));
}

}  // namespace
