// FindProblems: what loading lets into a value and its containers' schemas
// refuse, each at the JSON Pointer of the value concerned.
#include "support.hpp"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;
using ryx::object::testing::Int32Schema;
using ryx::object::testing::MakeBool;
using ryx::object::testing::MakeInt;
using ryx::object::testing::MakeString;
using ryx::object::testing::MessageOf;
using ryx::object::testing::StringSchema;
using Objects = Array<Object>::Objects;

std::string const NullValue = "Null value: an unknown type name or a null record was loaded here";

std::string Mismatch(char const* actual, char const* required) {
  return std::string("The object '") + actual + "' did not match the required type '" + required +
         "'";
}

// An array under a schema that applies to every element, holding `objects`
// as they are, unchecked, as loading fills it.
std::shared_ptr<Array<Object>> Loaded(Required const& schema, Objects const& objects) {
  auto array = std::make_shared<Array<Object>>(schema, Objects{});
  std::shared_ptr<Object> const fits = schema.Make();
  for (std::size_t index = 0; index != objects.size(); ++index) {
    array->Append(fits ? fits : MakeInt(0));
    *array->GetSlot(index) = objects[index];
  }
  return array;
}

class FindProblemsTest : public ::testing::Test {
 protected:
  void TearDown() override { SetNestingLimit(DefaultNestingLimit); }
};

TEST_F(FindProblemsTest, FindsNoneInAValueThatFitsEverySchema) {
  Required const arrayOfInt32(Object::TypeIdOf<Array<Object>>(), {Int32Schema});
  auto const typed = std::make_shared<Array<Object>>(Int32Schema, Objects{MakeInt(1)});
  Dictionary<Object> const value(
      Object::TypeIdOf<Dictionary<Object>>(), Required(),
      {{"pair", std::make_shared<Array<Object>>(Required{Int32Schema, StringSchema},
                                                Objects{MakeInt(1), MakeString("a")})},
       {"nested", std::make_shared<Array<Object>>(arrayOfInt32, Objects{typed})},
       {"empty", std::make_shared<Dictionary<Object>>()}});
  EXPECT_EQ(FindProblems(value), std::vector<Problem>{});
  EXPECT_EQ(FindProblems(std::make_shared<Int32>(1)), std::vector<Problem>{});
}

// Keys in order, whatever the table's order; every element checked, past the
// first problem too; '/' and '~' escaped; the empty key is a token too.
TEST_F(FindProblemsTest, ReportsEveryMisfitAndNullChildInKeyAndIndexOrder) {
  Required const arrayOfInt32(Object::TypeIdOf<Array<Object>>(), {Int32Schema});
  auto const untyped = Loaded(Required(), {MakeBool(true)});
  auto const typed = Loaded(Int32Schema, {MakeBool(false)});
  Dictionary<Object> value(
      Object::TypeIdOf<Dictionary<Object>>(), Required(),
      {{"sizes", Loaded(Int32Schema, {MakeInt(1), MakeBool(true), nullptr, MakeInt(4)})},
       // Three elements under a per-position schema of two, only as loaded.
       {"a/b~c", FromJson(R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[)"
                          R"({"type":4030099521,"child_types":[]},)"
                          R"({"type":2569593816,"child_types":[]}]},"objects":[)"
                          R"({"typename":"ryx.object.String","value":"x"},)"
                          R"({"typename":"ryx.object.Int32","value":2},)"
                          R"({"typename":"ryx.object.String","value":"past the schema"}]})")},
       {"", MakeInt(0)},
       {"nested", Loaded(arrayOfInt32, {untyped, typed})}});
  *value.GetSlot("") = nullptr;
  std::string const ownSchema =
      MessageOf<std::invalid_argument>([&] { arrayOfInt32.Check(*untyped); });
  std::vector<Problem> const expected{
      {"/", NullValue},
      {"/a~1b~0c", "Holds 3 elements where its per-position schema requires exactly 2"},
      {"/a~1b~0c/0", Mismatch("ryx.object.String", "ryx.object.Int32")},
      {"/a~1b~0c/1", Mismatch("ryx.object.Int32", "ryx.object.String")},
      {"/nested/0", ownSchema},
      {"/nested/1/0", Mismatch("ryx.object.Bool", "ryx.object.Int32")},
      {"/sizes/1", Mismatch("ryx.object.Bool", "ryx.object.Int32")},
      {"/sizes/2", NullValue},
  };
  EXPECT_EQ(FindProblems(value), expected);
}

// Child i of a per-position schema is for the i-th entry in the table's own
// order, as the schema's own check of the entries has it.
TEST_F(FindProblemsTest, ChecksADictionaryPerPositionInTheTablesOwnOrder) {
  Required const pair{Int32Schema, StringSchema};
  Dictionary<Object> const two(Object::TypeIdOf<Dictionary<Object>>(), pair,
                               {{"a", MakeInt(1)}, {"b", MakeString("b")}});
  bool const fits = [&] {
    try {
      pair.Check(two.GetProperties());
      return true;
    } catch (std::invalid_argument const&) {
      return false;
    }
  }();
  EXPECT_EQ(FindProblems(two).empty(), fits);
  EXPECT_EQ(FindProblems(two).size(), fits ? 0u : 2u);
  Dictionary<Object> const three(Object::TypeIdOf<Dictionary<Object>>(), pair,
                                 {{"a", MakeInt(1)}, {"b", MakeInt(2)}, {"c", MakeInt(3)}});
  std::vector<Problem> const problems = FindProblems(three);
  ASSERT_FALSE(problems.empty());
  EXPECT_EQ(problems.front(),
            (Problem{"", "Holds 3 entries where its per-position schema requires exactly 2"}));
}

TEST_F(FindProblemsTest, NamesWhatLoadingLetThroughAndANullRoot) {
  std::string const document =
      R"({"typename":"ryx.object.Dictionary","properties":[)"
      R"({"key":"count","value":{"typename":"ryx.object.Bool","value":true}},)"
      R"({"key":"typo","value":{"typename":"ryx.object.Int33","value":1}}],)"
      R"("required":{"type":4030099521,"child_types":[]}})";
  std::vector<Problem> const expected{{"/count", Mismatch("ryx.object.Bool", "ryx.object.Int32")},
                                      {"/typo", NullValue}};
  EXPECT_EQ(FindProblems(FromJson(document)), expected);
  EXPECT_EQ(FindProblems(FromBinary(ToBinary(FromJson(document)))), expected);
  EXPECT_EQ(FindProblems(FromJson(R"({"typename":"ryx.object.Int33","value":1})")),
            std::vector<Problem>{(Problem{"", NullValue})});
}

// The level past the limit is reported once, and not entered: the walk of an
// array that holds itself ends there.
TEST_F(FindProblemsTest, StopsAtTheFirstLevelPastTheLimitEvenInAValueThatHoldsItself) {
  SetNestingLimit(4);
  auto const cycle = std::make_shared<Array<Object>>();
  cycle->Append(cycle);
  std::vector<Problem> const problems = FindProblems(*cycle);
  cycle->Pop(0);
  EXPECT_EQ(problems, std::vector<Problem>{(Problem{
                          "/0/0/0/0",
                          "Nested deeper than the nesting limit of 4 levels: this value is at "
                          "level 5"})});
}

}  // namespace
