#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

using namespace ryx::object;
using ryx::hash::MurmurThree32;

constexpr MurmurThree32 Int32Id = Object::TypeIdOf<Int32>();
constexpr MurmurThree32 StringId = Object::TypeIdOf<String>();
constexpr MurmurThree32 DoubleId = Object::TypeIdOf<Double>();

using Elements = std::vector<std::shared_ptr<Object>>;

template <class Call>
std::string InvalidArgumentOf(Call call) {
  try {
    call();
  } catch (std::invalid_argument const& e) {
    return e.what();
  }
  ADD_FAILURE() << "no std::invalid_argument";
  return std::string();
}

std::string Printed(Required const& required) {
  std::ostringstream os;
  os << required;
  return os.str();
}

TEST(Required, TheEmptySchemaAcceptsEveryValueAndMakesNothing) {
  Required const empty;
  EXPECT_FALSE(empty);
  EXPECT_EQ(empty, Required(MurmurThree32()));
  EXPECT_EQ(empty, Int32().GetRequired());
  EXPECT_NO_THROW(empty.Check(Int32()));
  EXPECT_NO_THROW(empty.Check(Elements{std::make_shared<String>("a")}));
  EXPECT_EQ(empty.Make(), nullptr);
  EXPECT_EQ(InvalidArgumentOf([&] { empty.Check(std::shared_ptr<Object const>()); }),
            "Must provide a non-null object pointer");
}

TEST(Required, ValidatingConstructorsRejectEmptyChildren) {
  EXPECT_EQ(InvalidArgumentOf([] { Required{Required(), Required(Int32Id)}; }),
            "Cannot have empty required types");
  EXPECT_EQ(InvalidArgumentOf([] { Required(Int32Id, {Required(Int32Id), Required()}); }),
            "Cannot have empty required types");
  EXPECT_EQ(InvalidArgumentOf([] { Required(std::vector<Required>{Required()}); }),
            "Cannot have empty required types");
}

TEST(Required, RangeConstructorsKeepEmptyChildren) {
  std::vector<Required> const children{Required(), Required(Int32Id)};
  Required const untyped(children.begin(), children.end());
  EXPECT_EQ(untyped.GetChildTypes(), children);
  Required const typed(StringId, children.begin(), children.end());
  EXPECT_EQ(typed.GetType(), StringId);
  EXPECT_EQ(typed.GetChildTypes().size(), 2u);
}

TEST(Required, CopiesMovesAndComparesWholeTrees) {
  Required const tree(Int32Id, {Required{Required(StringId), Required(DoubleId)}});
  Required copy(tree);
  EXPECT_EQ(copy, tree);
  Required moved(std::move(copy));
  EXPECT_EQ(moved, tree);
  EXPECT_EQ(copy.GetType(), Int32Id);
  EXPECT_TRUE(copy.GetChildTypes().empty());
  EXPECT_NE(tree, Required(Int32Id, {Required{Required(StringId), Required(Int32Id)}}));
  EXPECT_NE(tree, Required(Int32Id));
  Required assigned;
  assigned = tree;
  EXPECT_EQ(assigned, tree);
  swap(assigned, moved = Required(StringId));
  EXPECT_EQ(assigned, Required(StringId));
  EXPECT_TRUE(static_cast<bool>(Required{Required(StringId)}));
}

TEST(Required, ATypedSchemaChecksTheValuesType) {
  Required const int32(Int32Id);
  EXPECT_NO_THROW(int32.Check(Int32(1)));
  EXPECT_EQ(InvalidArgumentOf([&] { int32.Check(Double(1)); }),
            "The object 'ryx.object.Double' did not match the required type 'ryx.object.Int32'");
  Required const unknown(MurmurThree32::MakeData("no.such.Type"));
  EXPECT_EQ(InvalidArgumentOf([&] { unknown.Check(Double(1)); }),
            "The object 'ryx.object.Double' did not match the required type '[not-registered]'");
}

TEST(Required, ChildTypesNeverAcceptAValueThatIsNotAContainer) {
  Required const schema(Int32Id, {Required(Int32Id)});
  EXPECT_EQ(InvalidArgumentOf([&] { schema.Check(Int32(1)); }),
            "The object 'ryx.object.Int32' specifies a required of: {\"types\":[], \"type:\"0} "
            "which does not match the parents required: {\"types\":[{\"types\":[], "
            "\"type:\"ryx.object.Int32}], \"type:\"0}");
}

TEST(Required, APerPositionSchemaChecksEachElementAgainstItsChild) {
  Required const perPosition{Required(Int32Id), Required(StringId)};
  EXPECT_NO_THROW(perPosition.Check(
      Elements{std::make_shared<Int32>(1), std::make_shared<String>("s")}));
  std::string const sizeMessage =
      "Array size must be the same as Required size for Required with null type.";
  EXPECT_EQ(InvalidArgumentOf([&] { perPosition.Check(Elements{std::make_shared<Int32>(1)}); }),
            sizeMessage);
  EXPECT_EQ(InvalidArgumentOf([&] { perPosition.Check(Elements{}); }), sizeMessage);
  EXPECT_EQ(InvalidArgumentOf([&] {
              perPosition.Check(Elements{std::make_shared<String>("s"), std::make_shared<Int32>(1)});
            }),
            "The object 'ryx.object.String' did not match the required type 'ryx.object.Int32'");
}

TEST(Required, AnElementSchemaAppliesAsAWholeToEveryElement) {
  Required const int32(Int32Id);
  EXPECT_NO_THROW(int32.Check(Elements{}));
  EXPECT_NO_THROW(int32.Check({std::shared_ptr<Object>(std::make_shared<Int32>(1))}));
  EXPECT_EQ(InvalidArgumentOf([&] {
              int32.Check(Elements{std::make_shared<Int32>(1), std::make_shared<Bool>(true)});
            }),
            "The object 'ryx.object.Bool' did not match the required type 'ryx.object.Int32'");
  EXPECT_EQ(InvalidArgumentOf([&] { Required().Check(Elements{nullptr}); }),
            "Must provide a non-null object pointer");
}

TEST(Required, ChecksTheValuesOfAMap) {
  std::unordered_map<std::string, std::shared_ptr<Object>> map{
      {"a", std::make_shared<Int32>(1)}};
  EXPECT_NO_THROW(Required(Int32Id).Check(map));
  EXPECT_NO_THROW(Required{Required(Int32Id)}.Check(map));
  map.emplace("b", std::make_shared<String>("s"));
  EXPECT_THROW(Required(Int32Id).Check(map), std::invalid_argument);
  EXPECT_EQ(InvalidArgumentOf([&] { Required{Required(Int32Id)}.Check(map); }),
            "Array size must be the same as Required size for Required with null type.");
}

TEST(Required, MakesAValueOfARegisteredType) {
  auto const made = Required(DoubleId).Make();
  ASSERT_TRUE(made);
  EXPECT_TRUE(made->Is<Double>());
  EXPECT_EQ(Required(MurmurThree32::MakeData("no.such.Type")).Make(), nullptr);
  EXPECT_EQ((Required{Required(Int32Id)}).Make(), nullptr);
}

TEST(Required, PrintsNamesOrIdsAndItsChildren) {
  EXPECT_EQ(Printed(Required()), "{\"types\":[], \"type:\"0}");
  EXPECT_EQ(Printed(Required(Int32Id)), "{\"types\":[], \"type:\"ryx.object.Int32}");
  EXPECT_EQ(Printed(Required(StringId, {Required(Int32Id), Required(DoubleId)})),
            "{\"types\":[{\"types\":[], \"type:\"ryx.object.Int32},{\"types\":[], "
            "\"type:\"ryx.object.Double}], \"type:\"ryx.object.String}");
  MurmurThree32 const unknown = MurmurThree32::MakeData("no.such.Type");
  EXPECT_EQ(Printed(Required(unknown)),
            "{\"types\":[], \"type:\"" + std::to_string(unknown.GetValue()) + "}");
}

}  // namespace
