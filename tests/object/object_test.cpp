// The value base class (type ids, casts, printing, copies, options) and the
// primitive kinds built on it.
#include "support.hpp"

#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;
using namespace ryx::object::testing;
using ::testing::PrintToString;

TEST(Object, IsAndAsMatchTheExactTypeOnly) {
  std::shared_ptr<Object> const value = std::make_shared<Int64>(8);
  EXPECT_TRUE(value->Is<Int64>());
  EXPECT_FALSE(value->Is<Int32>());
  EXPECT_EQ(MessageOf<std::bad_cast>([&] { value->As<Bool>(); }),
            "Failed to cast the runtime object from 'ryx.object.Int64' to a 'ryx.object.Bool'");
  std::shared_ptr<Object const> const constant = value;
  EXPECT_THROW(constant->As<String>(), BadCast);
}

TEST(Object, PrintsItsTypeNameOrNotRegisteredAndItsId) {
  EXPECT_EQ(PrintToString(Int32(3)), "{\"type\":\"ryx.object.Int32\",\"id\":" +
                                         std::to_string(Object::TypeIdOf<Int32>().GetValue()) +
                                         "}");
  Unregistered const foreign;
  EXPECT_EQ(PrintToString(foreign), "{\"type\":\"[not-registered]\",\"id\":" +
                                        std::to_string(foreign.GetType().GetValue()) + "}");
  EXPECT_EQ(MessageOf<BadCast>([&] { foreign.As<Int32>(); }),
            "Failed to cast the runtime object from '[not-registered]' to a 'ryx.object.Int32'");
}

TEST(Object, CopiesIntoANewValueOrNothingForAnUnregisteredTypeOrNull) {
  UInt64 const source(std::numeric_limits<unsigned long>::max());
  auto const copy = Object::Copy(source);
  ASSERT_TRUE(copy && copy->Is<UInt64>());
  EXPECT_TRUE(copy->EqualTo(source));
  EXPECT_EQ(Object::Copy(Unregistered()), nullptr);
  EXPECT_EQ(Object::Copy(std::shared_ptr<Object const>()), nullptr);
  auto const shared = Object::Copy(std::shared_ptr<Object const>(std::make_shared<String>("s")));
  EXPECT_TRUE(shared && shared->EqualTo(String("s")));
}

TEST(Options, StartClearAndTravelWithAMovedValue) {
  Int32 value;
  EXPECT_TRUE(value.GetOptions().None());
  value.GetOptions().Set(Option::deserializing);
  EXPECT_TRUE(Int32(std::move(value)).GetOptions().GetBits().test(0));
  EXPECT_EQ(ryx::type::Strings<Option>::GetMap().at(0), "deserializing");
}

// A derived class sees every change through the virtual Set(T).
struct CountingInt32 : Int32 {
  using Int32::Set;
  void Set(int value) override {
    ++sets;
    Int32::Set(value);
  }
  int sets = 0;
};

// Set takes its own kind, or parses a string; anything else fails and keeps
// the value.
TEST(Primitive, SetTakesItsOwnKindOrParsesAStringThroughTheVirtualSetter) {
  CountingInt32 target;
  target.Set(Int32(3));
  EXPECT_EQ(MessageOf<BadCast>([&] { target.Set(Int16(5)); }),
            "Failed to cast the runtime object from 'ryx.object.Int16' to a 'ryx.object.Int32'");
  EXPECT_EQ(target.Get(), 3);
  target.Set(String("5x"));
  EXPECT_THROW(target.Set(String("x5")), std::invalid_argument);
  EXPECT_EQ(target.Get(), 5);
  EXPECT_EQ(target.sets, 2);
  String text("old");
  text.Set(String("keep"));
  EXPECT_THROW(text.Set(Int32(5)), BadCast);
  EXPECT_EQ(text.Get(), "keep");
}

TEST(Primitive, EqualsOnlyTheSameKindWithExactlyTheSameValue) {
  EXPECT_TRUE(Int32(4).EqualTo(Int32(4)));
  EXPECT_FALSE(Int32(4).EqualTo(Int32(5)));
  EXPECT_FALSE(Int32(4).EqualTo(Int64(4)));
  // Exactly: strings byte for byte, numbers with no tolerance, NaN equals
  // nothing.
  EXPECT_FALSE(String(std::string("a\0b", 3)).EqualTo(String("a")));
  Double const nan(std::numeric_limits<double>::quiet_NaN());
  EXPECT_FALSE(nan.EqualTo(nan));
  EXPECT_FALSE(Double(0.1 + 0.2).EqualTo(Double(0.3)));
}

}  // namespace
