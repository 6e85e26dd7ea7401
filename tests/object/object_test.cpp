#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <typeinfo>

namespace {

using namespace ryx::object;
using ryx::hash::MurmurThree32;

// A value class that was never registered.
struct Foreign : Object {
  Foreign() : Object(MurmurThree32::MakeData("test.Foreign")) {}
  void Set(Object const&) override {}
  bool EqualTo(Object const&) const override { return false; }
};

}  // namespace

namespace ryx::type {
template <>
struct Name<Foreign> {
  static constexpr char const* Value = "test.Foreign";
};
}  // namespace ryx::type

namespace {

TEST(Object, TypeIdIsTheHashOfTheTypeName) {
  EXPECT_EQ(Int32().GetType(), MurmurThree32::MakeData(boost::string_view("ryx.object.Int32")));
  EXPECT_EQ(Object::TypeIdOf<Int32>(), MurmurThree32::MakeData("ryx.object.Int32"));
}

TEST(Object, IsComparesExactTypeIds) {
  std::shared_ptr<Object> const value = std::make_shared<Int64>(1);
  EXPECT_TRUE(value->Is<Int64>());
  EXPECT_FALSE(value->Is<Int32>());
  EXPECT_FALSE(std::make_shared<UInt32>(1u)->Is<Int32>());
}

TEST(Object, AsReturnsTheSameObjectOnSuccess) {
  std::shared_ptr<Object> const value = std::make_shared<Int32>(8);
  EXPECT_EQ(&value->As<Int32>(), value.get());
  std::shared_ptr<Object const> const constant = value;
  EXPECT_EQ(constant->As<Int32>().Get(), 8);
}

TEST(Object, AsThrowsABadCastNamingBothTypes) {
  Int32 value(1);
  try {
    value.As<Bool>();
    FAIL() << "expected BadCast";
  } catch (std::bad_cast const& e) {
    EXPECT_STREQ(e.what(),
                 "Failed to cast the runtime object from 'ryx.object.Int32' to a 'ryx.object.Bool'");
  }
  Int32 const& constant = value;
  EXPECT_THROW(constant.As<String>(), BadCast);
}

TEST(Object, AnUnregisteredTypePrintsAsNotRegistered) {
  Foreign foreign;
  try {
    foreign.As<Int32>();
    FAIL() << "expected BadCast";
  } catch (BadCast const& e) {
    EXPECT_STREQ(e.what(),
                 "Failed to cast the runtime object from '[not-registered]' to a 'ryx.object.Int32'");
  }
  std::ostringstream os;
  os << foreign;
  EXPECT_EQ(os.str(), "{\"type\":\"[not-registered]\",\"id\":" +
                          std::to_string(foreign.GetType().GetValue()) + "}");
  EXPECT_TRUE(foreign.Is<Foreign>());
}

TEST(Object, PrintsItsTypeNameAndId) {
  std::ostringstream os;
  os << Int32(3);
  EXPECT_EQ(os.str(), "{\"type\":\"ryx.object.Int32\",\"id\":" +
                          std::to_string(Object::TypeIdOf<Int32>().GetValue()) + "}");
}

TEST(Object, CopyOfAnUnregisteredTypeOrOfNothingIsEmpty) {
  EXPECT_EQ(Object::Copy(Foreign()), nullptr);
  EXPECT_EQ(Object::Copy(std::shared_ptr<Object const>()), nullptr);
  auto const copy = Object::Copy(std::shared_ptr<Object const>(std::make_shared<String>("s")));
  ASSERT_TRUE(copy);
  EXPECT_EQ(copy->As<String>().Get(), "s");
}

TEST(Object, ACopyConstructedValueStartsWithoutASelfReference) {
  auto const original = std::make_shared<Int32>(2);
  EXPECT_EQ(original->shared_from_this(), original);
  Int32 copy(*original);
  EXPECT_TRUE(copy.weak_from_this().expired());
  EXPECT_EQ(copy.GetType(), original->GetType());
}

TEST(Object, ANonContainerWalksAsEmptyAndReportsTheEmptySchema) {
  Int32 value;
  Int32 const& constant = value;
  EXPECT_TRUE(begin(value) == end(value));
  EXPECT_TRUE(cbegin(constant) == cend(constant));
  EXPECT_FALSE(static_cast<bool>(begin(value)));
  EXPECT_EQ(value.GetRequired(), Required());
  int visited = 0;
  for (Object& child : value) {
    (void)child;
    ++visited;
  }
  EXPECT_EQ(visited, 0);
}

TEST(Options, StartClearAndHoldTheDeserializingFlag) {
  Int32 value;
  EXPECT_FALSE(value.GetOptions().Test(Option::deserializing));
  value.GetOptions().Set(Option::deserializing);
  EXPECT_TRUE(value.GetOptions().Test(Option::deserializing));
  EXPECT_TRUE(value.GetOptions().GetBits().test(0));
  Int32 const moved(std::move(value));
  EXPECT_TRUE(moved.GetOptions().Test(Option::deserializing));
  value.GetOptions().Clear(Option::deserializing);
  EXPECT_TRUE(value.GetOptions().None());
}

TEST(Options, HaveOneNamedOptionInOneProcessWideTable) {
  auto const& map = ryx::type::Strings<Option>::GetMap();
  EXPECT_EQ(&map, &ryx::type::Strings<Option>::GetMap());
  ASSERT_EQ(map.size(), 1u);
  EXPECT_EQ(map.at(0), "deserializing");
  EXPECT_STREQ(ryx::type::Name<Option>::Value, "ryx.object.Option");
  EXPECT_STREQ(ryx::type::Name<Options>::Value, "ryx.object.Options");
  EXPECT_EQ(Object::TypeName(MurmurThree32::MakeData("ryx.object.Option")), nullptr);
}

}  // namespace
