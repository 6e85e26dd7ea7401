// Arrays and dictionaries: schema checks, failed operations that change
// nothing, ownership of the elements, deep copies and comparison.
#include "support.hpp"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;
using namespace ryx::object::testing;
using Objects = Array<Object>::Objects;
using Properties = Dictionary<Object>::Properties;

ryx::hash::MurmurThree32 DictionaryId() { return Object::TypeIdOf<Dictionary<Object>>(); }
std::string const NullObject = "Must provide a non-null object pointer";
std::string const SizeMismatch =
    "Array size must be the same as Required size for Required with null type.";

std::vector<Object const*> ElementsOf(Object const& container) {
  std::vector<Object const*> elements;
  for (Object const& element : container) {
    elements.push_back(&element);
  }
  return elements;
}

TEST(Containers, StartEmptyUnderTheDefaultSchema) {
  for (auto const id : {ArraySchema.GetType(), DictionaryId()}) {
    auto const made = Object::Make(id);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetRequired(), Required());
    EXPECT_TRUE(made->Begin() == made->End());
  }
}

// What loading a null record leaves behind: an empty slot, which copies and
// compares like any other element.
TEST(Containers, CopyAndCompareANullElementLeftByLoading) {
  Array<Object> array(Objects{MakeInt(1), MakeInt(2)});
  *array.GetSlot(1) = nullptr;
  EXPECT_EQ(array.GetSlot(2), nullptr);
  Dictionary<Object> dictionary(DictionaryId(), Int32Schema,
                                Properties{{"a", MakeInt(1)}, {"b", MakeInt(2)}});
  *dictionary.GetSlot("b") = nullptr;
  for (Object const* source : std::initializer_list<Object const*>{&array, &dictionary}) {
    auto const copy = Object::Copy(*source);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->EqualTo(*source));
  }
  EXPECT_EQ(Object::Copy(array)->As<Array<Object>>().Get(1), nullptr);
  EXPECT_EQ(Object::Copy(dictionary)->As<Dictionary<Object>>().Get("b"), nullptr);
  // A null element equals only a null element, from either side.
  Array<Object> const arrayOfValues(Objects{MakeInt(1), MakeInt(2)});
  Dictionary<Object> const dictionaryOfValues(DictionaryId(), Int32Schema,
                                              Properties{{"a", MakeInt(1)}, {"b", MakeInt(2)}});
  EXPECT_FALSE(array.EqualTo(arrayOfValues));
  EXPECT_FALSE(arrayOfValues.EqualTo(array));
  EXPECT_FALSE(dictionary.EqualTo(dictionaryOfValues));
  EXPECT_FALSE(dictionaryOfValues.EqualTo(dictionary));
}

TEST(Array, ConstructionChecksEveryElement) {
  EXPECT_EQ(MessageOf<std::invalid_argument>([] {
              Array<Object>(Objects{MakeInt(1), nullptr});
            }),
            NullObject);
  EXPECT_EQ(MessageOf<std::invalid_argument>([] {
              Array<Object>(Int32Schema, {MakeInt(1), MakeBool(true)});
            }),
            "The object 'ryx.object.Bool' did not match the required type 'ryx.object.Int32'");
  EXPECT_EQ(Array<Object>(Int32Schema, {MakeInt(1), MakeInt(2)}).Size(), 2u);
}

TEST(Array, ATypedSchemaRejectsAnElementOfAnotherTypeOnEveryPathAndKeepsTheArray) {
  Array<Object> array(Int32Schema, {MakeInt(1), MakeInt(2)});
  Snapshot const before = Snapshot::Of(array);
  EXPECT_THROW(array.Append(MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.Prepend(MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.Insert(1, {MakeInt(3), MakeBool(true)}), std::invalid_argument);
  EXPECT_THROW(array.Set(0, MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.SetRequired(StringSchema), std::invalid_argument);
  EXPECT_EQ(Snapshot::Of(array), before);
}

TEST(Array, APerPositionSchemaChecksTheWholeListAgainstItsChildren) {
  Required const pair{Int32Schema, StringSchema};
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { Array<Object>(pair, {MakeInt(1)}); }),
            SizeMismatch);
  Array<Object> array(pair, {MakeInt(1), MakeString("a")});
  array.Set(1, MakeString("b"));
  Snapshot const before = Snapshot::Of(array);
  // The schema test comes before the range test.
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Set(2, MakeInt(3)); }),
            "Required with null type can only be as large as the number of Required children");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Append(MakeInt(3)); }), SizeMismatch);
  EXPECT_THROW(array.Insert(0, {MakeString("x"), MakeInt(2)}), std::invalid_argument);
  EXPECT_EQ(Snapshot::Of(array), before);
  array.Insert(0, {MakeInt(0), MakeString("z")});
  EXPECT_EQ(array.Size(), 4u);
  // A single child checks every element alone.
  Array<Object> ints(Required{Int32Schema}, {MakeInt(1)});
  ints.Append(MakeInt(2));
  ints.Prepend(MakeInt(0));
  EXPECT_THROW(ints.Append(MakeString("x")), std::invalid_argument);
  EXPECT_EQ(ints.Size(), 3u);
}

TEST(Array, SetRequiredChecksTheElementsHeldBeforeItReplacesTheSchema) {
  Array<Object> array(Objects{MakeInt(1), MakeString("x")});
  EXPECT_THROW(array.SetRequired(Int32Schema), std::invalid_argument);
  EXPECT_EQ(array.GetRequired(), Required());
  array.SetRequired(Required{Int32Schema, StringSchema});
  EXPECT_EQ(array.GetRequired(), (Required{Int32Schema, StringSchema}));
}

// Set, Insert and Pop are checked with their messages through the C functions.
TEST(Array, ReportsTheIndexAndSizeOfAnOutOfRangeAccess) {
  Array<Object> array(Objects{MakeInt(0), MakeInt(1), MakeInt(2)});
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { array.Get(3); }),
            "The index is out of range: 3 >= 3");
  EXPECT_THROW(array.Set(3, MakeInt(9)), std::out_of_range);
  EXPECT_EQ(array.Size(), 3u);
  array.Insert(3, {MakeInt(3)});
  EXPECT_EQ(array.Size(), 4u);
}

TEST(Array, RefusesNullElementsWithTheMessageOfEachPath) {
  Array<Object> array(Objects{MakeInt(0)});
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Set(0, nullptr); }),
            "Cannot set null object pointers in an array");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Append(nullptr); }), NullObject);
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Prepend(nullptr); }), NullObject);
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] {
              array.Insert(0, {MakeInt(1), nullptr});
            }),
            NullObject);
  EXPECT_EQ(array.Size(), 1u);
}

TEST(Array, ComparesLengthElementsAndSchema) {
  Array<Object> const a(Objects{MakeInt(1), MakeString("x")});
  EXPECT_TRUE(a.EqualTo(Array<Object>(Objects{MakeInt(1), MakeString("x")})));
  EXPECT_FALSE(a.EqualTo(Array<Object>(Objects{MakeInt(1)})));
  EXPECT_FALSE(a.EqualTo(Array<Object>(Objects{MakeInt(1), MakeString("y")})));
  EXPECT_FALSE(
      a.EqualTo(Array<Object>(Required{Int32Schema, StringSchema}, {MakeInt(1), MakeString("x")})));
  EXPECT_THROW(static_cast<void>(a.EqualTo(Int32(5))), BadCast);
}

TEST(Array, CopiesDeeplyWithItsSchemaAndTheSchemasOfItsElements) {
  auto const nested = std::make_shared<Array<Object>>(Int32Schema, Objects{MakeInt(1)});
  Array<Object> const source(Required(ArraySchema.GetType(), {Int32Schema}), {nested});
  Array<Object> copy;
  copy.Set(source);
  EXPECT_EQ(copy.GetRequired(), source.GetRequired());
  ASSERT_EQ(copy.Size(), 1u);
  EXPECT_NE(copy.Get(0), nested);
  EXPECT_EQ(copy.Get(0)->GetRequired(), Int32Schema);
  EXPECT_TRUE(copy.EqualTo(source));
}

TEST(Array, AFailedCopyNamesTheCauseAndLeavesTheTargetAsItWas) {
  Array<Object> target(Objects{MakeInt(1)});
  Snapshot const before = Snapshot::Of(target);
  EXPECT_EQ(MessageOf<BadCast>([&] { target.Set(Int32(5)); }),
            "Failed to cast the runtime object from 'ryx.object.Int32' to a 'ryx.object.Array'");
  EXPECT_EQ(Snapshot::Of(target), before);
  Array<Object> const source(Objects{MakeInt(1), std::make_shared<Unregistered>()});
  EXPECT_EQ(MessageOf<std::runtime_error>([&] { target.Set(source); }),
            "Failed to copy array element '");
  EXPECT_EQ(Snapshot::Of(target), before);
}

TEST(Array, RequiredMakesAnEmptyArrayCarryingASingleChildAsItsSchema) {
  auto const typed = Required(ArraySchema.GetType(), {Int32Schema}).Make();
  ASSERT_TRUE(typed && typed->Is<Array<Object>>());
  EXPECT_EQ(typed->GetRequired(), Int32Schema);
  auto const untyped = Required(ArraySchema.GetType(), {Int32Schema, StringSchema}).Make();
  ASSERT_TRUE(untyped);
  EXPECT_EQ(untyped->GetRequired(), Required());
  Required const pair{Int32Schema, StringSchema};
  auto const perPosition = Required(ArraySchema.GetType(), {pair}).Make();
  ASSERT_TRUE(perPosition);
  EXPECT_EQ(perPosition->GetRequired(), pair);
}

TEST(Dictionary, WalksEachValueOnceAndNeverAKey) {
  auto const a = MakeInt(1), b = MakeInt(2), c = MakeString("c");
  std::vector<Object const*> seen =
      ElementsOf(Dictionary<Object>(Properties{{"a", a}, {"b", b}, {"c", c}}));
  std::vector<Object const*> expected{a.get(), b.get(), c.get()};
  std::sort(seen.begin(), seen.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(seen, expected);
}

TEST(Dictionary, ConstructionRefusesNullValuesButDoesNotCheckTheSchema) {
  EXPECT_EQ(MessageOf<std::invalid_argument>([] {
              Dictionary<Object>(Properties{{"a", nullptr}});
            }),
            "Must provide valid object pointers when creating a dictionary");
  Dictionary<Object> const unchecked(DictionaryId(), Int32Schema,
                                     Properties{{"f", MakeBool(true)}});
  EXPECT_EQ(unchecked.Size(), 1u);
  EXPECT_EQ(unchecked.GetRequired(), Int32Schema);
}

TEST(Dictionary, InsertChecksTheValueThenTheKeyAndKeepsTheFirstValue) {
  auto const first = MakeInt(1);
  Dictionary<Object> dictionary(DictionaryId(), Int32Schema, Properties{{"a", first}});
  Snapshot const before = Snapshot::Of(dictionary);
  // A wrong value is reported before an existing key.
  EXPECT_THROW(dictionary.Insert("a", MakeBool(true)), std::invalid_argument);
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { dictionary.Insert("b", nullptr); }), NullObject);
  EXPECT_THROW(dictionary.Insert("a", MakeInt(2)), std::logic_error);
  EXPECT_EQ(Snapshot::Of(dictionary), before);
  EXPECT_EQ(dictionary.Get("a"), first);
}

TEST(Dictionary, APerPositionSchemaAppliesAsAWholeToEachInsertedValue) {
  Dictionary<Object> dictionary(DictionaryId(), Required{Int32Schema, StringSchema}, Properties{});
  dictionary.Insert("a", MakeBool(true));
  EXPECT_EQ(dictionary.Size(), 1u);
}

TEST(Dictionary, ComparesKeysValuesAndSchema) {
  Dictionary<Object> const a(Properties{{"x", MakeInt(1)}, {"y", MakeString("s")}});
  EXPECT_TRUE(a.EqualTo(Dictionary<Object>(Properties{{"y", MakeString("s")}, {"x", MakeInt(1)}})));
  EXPECT_FALSE(
      a.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(1)}, {"z", MakeString("s")}})));
  EXPECT_FALSE(
      a.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(2)}, {"y", MakeString("s")}})));
  EXPECT_FALSE(a.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(1)}})));
  EXPECT_FALSE(a.EqualTo(Dictionary<Object>(
      DictionaryId(), StringSchema, Properties{{"x", MakeInt(1)}, {"y", MakeString("s")}})));
  EXPECT_THROW(static_cast<void>(a.EqualTo(Int32(1))), BadCast);
}

TEST(Dictionary, CopiesDeeplyWithItsSchema) {
  auto const nested = std::make_shared<Array<Object>>(Objects{MakeInt(1)});
  Dictionary<Object> const source(DictionaryId(), ArraySchema, Properties{{"list", nested}});
  Dictionary<Object> copy;
  copy.Set(source);
  EXPECT_EQ(copy.GetRequired(), ArraySchema);
  EXPECT_NE(copy.Get("list"), nested);
  EXPECT_TRUE(copy.EqualTo(source));
}

TEST(Dictionary, AFailedCopyNamesTheCauseAndLeavesTheTargetAsItWas) {
  Dictionary<Object> target(Properties{{"b", MakeInt(1)}});
  Snapshot const before = Snapshot::Of(target);
  Dictionary<Object> const source(Properties{{"odd", std::make_shared<Unregistered>()}});
  EXPECT_EQ(MessageOf<std::runtime_error>([&] { target.Set(source); }),
            "Failed to copy dictionary element 'odd': ");
  EXPECT_EQ(Snapshot::Of(target), before);
  EXPECT_THROW(target.Set(Int32(1)), BadCast);
  EXPECT_EQ(Snapshot::Of(target), before);
}

// A per-position schema cannot describe a dictionary's values, so such a
// source is refused, and the target is left empty.
TEST(Dictionary, RefusesAPerPositionSchemaFromACopyOrASchema) {
  Dictionary<Object> const source(DictionaryId(), Required{Int32Schema},
                                  Properties{{"a", MakeInt(1)}});
  Dictionary<Object> target(Properties{{"b", MakeInt(2)}});
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { target.Set(source); }), SizeMismatch);
  EXPECT_TRUE(target.Empty());
  EXPECT_EQ(target.GetRequired(), Required());
  EXPECT_THROW(Required(DictionaryId(), {Required{Int32Schema}}).Make(), std::invalid_argument);
  auto const made = Required(DictionaryId(), {Int32Schema}).Make();
  ASSERT_TRUE(made && made->Is<Dictionary<Object>>());
  EXPECT_EQ(made->GetRequired(), Int32Schema);
}

TEST(Property, HoldsAKeyAndANonNullObject) {
  auto const value = MakeInt(1);
  dictionary::Property property("k", value);
  EXPECT_EQ(property.GetKey(), "k");
  EXPECT_EQ(property.GetObject(), value);  // a copy: the property keeps its own
  EXPECT_EQ(std::move(property).GetObject(), value);
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { dictionary::Property("k", nullptr); }),
            "Cannot create a property with a null object pointer");
}

}  // namespace
