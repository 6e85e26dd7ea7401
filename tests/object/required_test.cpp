#include "support.hpp"

#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using namespace ryx::object;
using ryx::hash::MurmurThree32;
using ryx::object::testing::MessageOf;
using Elements = std::vector<std::shared_ptr<Object>>;

constexpr MurmurThree32 Int32Id = Object::TypeIdOf<Int32>();
constexpr MurmurThree32 StringId = Object::TypeIdOf<String>();
constexpr MurmurThree32 DoubleId = Object::TypeIdOf<Double>();
std::string const SizeMismatch =
    "Array size must be the same as Required size for Required with null type.";

template <class Call>
std::string InvalidArgumentOf(Call call) {
  return MessageOf<std::invalid_argument>(call);
}

TEST(Required, TheEmptySchemaAcceptsEveryValueButNull) {
  Required const empty;
  EXPECT_FALSE(empty);
  EXPECT_TRUE(static_cast<bool>(Required{Required(StringId)}));
  EXPECT_NO_THROW(empty.Check(Int32()));
  EXPECT_NO_THROW(empty.Check(Elements{std::make_shared<String>("a")}));
  EXPECT_EQ(InvalidArgumentOf([&] { empty.Check(std::shared_ptr<Object const>()); }),
            "Must provide a non-null object pointer");
  EXPECT_THROW(empty.Check(Elements{nullptr}), std::invalid_argument);
}

TEST(Required, ValidatingConstructorsRejectEmptyChildrenButRangeConstructorsKeepThem) {
  std::string const empty = "Cannot have empty required types";
  EXPECT_EQ(InvalidArgumentOf([] { Required{Required(), Required(Int32Id)}; }), empty);
  EXPECT_EQ(InvalidArgumentOf([] { Required(Int32Id, {Required(Int32Id), Required()}); }), empty);
  EXPECT_EQ(InvalidArgumentOf([] { Required(std::vector<Required>{Required()}); }), empty);
  std::vector<Required> const children{Required(), Required(Int32Id)};
  EXPECT_EQ(Required(children.begin(), children.end()).GetChildTypes(), children);
  Required const typed(StringId, children.begin(), children.end());
  EXPECT_EQ(typed.GetType(), StringId);
  EXPECT_EQ(typed.GetChildTypes(), children);
}

TEST(Required, ComparesWholeTreesAndLeavesAMovedFromSchemaWithItsTypeAlone) {
  Required const tree(Int32Id, {Required{Required(StringId), Required(DoubleId)}});
  Required copy(tree);
  EXPECT_EQ(copy, tree);
  EXPECT_NE(tree, Required(Int32Id, {Required{Required(StringId), Required(Int32Id)}}));
  EXPECT_NE(tree, Required(Int32Id));
  Required const moved(std::move(copy));
  EXPECT_EQ(moved, tree);
  EXPECT_EQ(copy, Required(Int32Id));
}

// The second message prints both schemas, each type by name or else by id,
// with its children in order.
TEST(Required, ATypedSchemaChecksTheValuesTypeAndThatOnlyContainersHaveChildTypes) {
  MurmurThree32 const unknown = MurmurThree32::MakeData("no.such.Type");
  EXPECT_NO_THROW(Required(Int32Id).Check(Int32(1)));
  EXPECT_EQ(InvalidArgumentOf([&] { Required(Int32Id).Check(Double(1)); }),
            "The object 'ryx.object.Double' did not match the required type 'ryx.object.Int32'");
  EXPECT_EQ(InvalidArgumentOf([&] { Required(unknown).Check(Double(1)); }),
            "The object 'ryx.object.Double' did not match the required type '[not-registered]'");
  EXPECT_EQ(InvalidArgumentOf([&] {
              Required(Int32Id, {Required(Int32Id), Required(unknown)}).Check(Int32(1));
            }),
            "The object 'ryx.object.Int32' specifies a required of: {\"types\":[], \"type:\"0} "
            "which does not match the parents required: {\"types\":[{\"types\":[], "
            "\"type:\"ryx.object.Int32},{\"types\":[], \"type:\"" +
                std::to_string(unknown.GetValue()) + "}], \"type:\"0}");
}

TEST(Required, AnElementSchemaAppliesToEveryElementOrMapValueAndAPerPositionOneToEachInTurn) {
  Required const int32(Int32Id);
  EXPECT_NO_THROW(int32.Check(Elements{std::make_shared<Int32>(1)}));
  EXPECT_THROW(int32.Check(Elements{std::make_shared<Int32>(1), std::make_shared<Bool>(true)}),
               std::invalid_argument);
  Required const perPosition{Required(Int32Id), Required(StringId)};
  EXPECT_NO_THROW(
      perPosition.Check(Elements{std::make_shared<Int32>(1), std::make_shared<String>("s")}));
  EXPECT_EQ(InvalidArgumentOf([&] { perPosition.Check(Elements{std::make_shared<Int32>(1)}); }),
            SizeMismatch);
  EXPECT_EQ(InvalidArgumentOf([&] { perPosition.Check(Elements{}); }), SizeMismatch);
  EXPECT_EQ(
      InvalidArgumentOf([&] {
        perPosition.Check(Elements{std::make_shared<String>("s"), std::make_shared<Int32>(1)});
      }),
      "The object 'ryx.object.String' did not match the required type 'ryx.object.Int32'");
  // A map's values are checked as the elements of a sequence.
  std::unordered_map<std::string, std::shared_ptr<Object>> map{{"a", std::make_shared<Int32>(1)}};
  EXPECT_NO_THROW(int32.Check(map));
  map.emplace("b", std::make_shared<String>("s"));
  EXPECT_THROW(int32.Check(map), std::invalid_argument);
  EXPECT_EQ(InvalidArgumentOf([&] { Required{Required(Int32Id)}.Check(map); }), SizeMismatch);
}

}  // namespace
