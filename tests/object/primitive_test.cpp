#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;

TEST(Primitive, DefaultsToTheValueInitialisedValue) {
  EXPECT_EQ(Int32().Get(), 0);
  EXPECT_FALSE(Bool().Get());
  EXPECT_EQ(String().Get(), "");
  EXPECT_EQ(Double().Get(), 0.0);
  auto const made = Object::Make(Object::TypeIdOf<UInt64>());
  ASSERT_TRUE(made);
  EXPECT_EQ(made->As<UInt64>().Get(), 0u);
}

TEST(Primitive, TakesTheValueOfItsOwnKind) {
  Int32 target(1);
  target.Set(Int32(-9));
  EXPECT_EQ(target.Get(), -9);
  String text("old");
  text.Set(String("new"));
  EXPECT_EQ(text.Get(), "new");
}

TEST(Primitive, RefusesAnotherNumericKindAndKeepsItsValue) {
  Int32 target(3);
  try {
    target.Set(Int16(5));
    FAIL() << "expected BadCast";
  } catch (BadCast const& e) {
    EXPECT_STREQ(e.what(),
                 "Failed to cast the runtime object from 'ryx.object.Int16' to a 'ryx.object.Int32'");
  }
  EXPECT_THROW(target.Set(Int64(5)), BadCast);
  EXPECT_THROW(target.Set(UInt32(5)), BadCast);
  EXPECT_EQ(target.Get(), 3);
}

TEST(Primitive, ParsesAStringValueAndKeepsItsValueWhenParsingFails) {
  Int32 target(3);
  target.Set(String("5x"));
  EXPECT_EQ(target.Get(), 5);
  EXPECT_THROW(target.Set(String("x5")), std::invalid_argument);
  EXPECT_EQ(target.Get(), 5);
  UInt8 small(7);
  EXPECT_THROW(small.Set(String("256")), std::out_of_range);
  EXPECT_EQ(small.Get(), 7);
  Bool flag;
  flag.Set(String("true"));
  EXPECT_TRUE(flag.Get());
  Double number;
  number.Set(String("2.5"));
  EXPECT_EQ(number.Get(), 2.5);
}

TEST(Primitive, StringNeverTakesANumber) {
  String text("keep");
  EXPECT_THROW(text.Set(Int32(5)), BadCast);
  EXPECT_EQ(text.Get(), "keep");
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

TEST(Primitive, RoutesEveryChangeThroughTheVirtualSetter) {
  CountingInt32 counting;
  counting.Set(Int32(4));
  counting.Set(String("6"));
  EXPECT_EQ(counting.sets, 2);
  EXPECT_EQ(counting.Get(), 6);
}

TEST(Primitive, EqualsOnlyTheSameKindWithTheSameValue) {
  EXPECT_TRUE(Int32(4).EqualTo(Int32(4)));
  EXPECT_FALSE(Int32(4).EqualTo(Int32(5)));
  EXPECT_FALSE(Int32(4).EqualTo(Int64(4)));
  EXPECT_FALSE(Int32(4).EqualTo(String("4")));
  EXPECT_FALSE(Float(1.0f).EqualTo(Double(1.0)));
  EXPECT_FALSE(String("abc").EqualTo(String("ABC")));
  EXPECT_TRUE(String(std::string("a\0b", 3)).EqualTo(String(std::string("a\0b", 3))));
  EXPECT_FALSE(String(std::string("a\0b", 3)).EqualTo(String("a")));
}

TEST(Primitive, ComparesFloatingPointExactly) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  Double const a(nan);
  EXPECT_FALSE(a.EqualTo(a));
  EXPECT_FALSE(Double(nan).EqualTo(Double(nan)));
  EXPECT_TRUE(Double(0.0).EqualTo(Double(-0.0)));
  EXPECT_FALSE(Double(0.1 + 0.2).EqualTo(Double(0.3)));
}

TEST(Primitive, CopiesIntoANewIndependentValue) {
  UInt64 const source(std::numeric_limits<unsigned long>::max());
  auto const copy = Object::Copy(source);
  ASSERT_TRUE(copy);
  ASSERT_TRUE(copy->Is<UInt64>());
  EXPECT_EQ(copy->As<UInt64>().Get(), std::numeric_limits<unsigned long>::max());
  EXPECT_NE(copy.get(), static_cast<Object const*>(&source));
}

TEST(Primitive, EveryKindHasItsOwnTypeName) {
  EXPECT_STREQ(Object::TypeName(Bool().GetType()), "ryx.object.Bool");
  EXPECT_STREQ(Object::TypeName(Int8().GetType()), "ryx.object.Int8");
  EXPECT_STREQ(Object::TypeName(Int16().GetType()), "ryx.object.Int16");
  EXPECT_STREQ(Object::TypeName(Int32().GetType()), "ryx.object.Int32");
  EXPECT_STREQ(Object::TypeName(Int64().GetType()), "ryx.object.Int64");
  EXPECT_STREQ(Object::TypeName(UInt8().GetType()), "ryx.object.UInt8");
  EXPECT_STREQ(Object::TypeName(UInt16().GetType()), "ryx.object.UInt16");
  EXPECT_STREQ(Object::TypeName(UInt32().GetType()), "ryx.object.UInt32");
  EXPECT_STREQ(Object::TypeName(UInt64().GetType()), "ryx.object.UInt64");
  EXPECT_STREQ(Object::TypeName(Float().GetType()), "ryx.object.Float");
  EXPECT_STREQ(Object::TypeName(Double().GetType()), "ryx.object.Double");
  EXPECT_STREQ(Object::TypeName(String().GetType()), "ryx.object.String");
}

}  // namespace
