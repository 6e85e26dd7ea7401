// Arrays and dictionaries: schema checks, failed operations that change
// nothing, ownership of the elements, deep copies and comparison.
#include "support.hpp"

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using namespace ryx::object;
using namespace ryx::object::testing;
using Objects = Array<Object>::Objects;
using Properties = Dictionary<Object>::Properties;

ryx::hash::MurmurThree32 DictionaryId() { return Object::TypeIdOf<Dictionary<Object>>(); }
std::string const NullObject = "Must provide a non-null object pointer";
std::string const SizeMismatch =
    "Array size must be the same as Required size for Required with null type.";

template <class Call>
std::string InvalidArgumentOf(Call call) {
  return MessageOf<std::invalid_argument>(call);
}

// What loading a null record leaves behind: an empty slot, which copies and
// compares like any other element, and equals only an empty slot.
TEST(Containers, CopyAndCompareANullElementLeftByLoading) {
  Array<Object> array(Objects{MakeInt(1), MakeInt(2)});
  Dictionary<Object> dictionary(DictionaryId(), Int32Schema,
                                Properties{{"a", MakeInt(1)}, {"b", MakeInt(2)}});
  Array<Object> const fullArray(array);
  Dictionary<Object> const fullDictionary(dictionary);
  *array.GetSlot(1) = nullptr;
  *dictionary.GetSlot("b") = nullptr;
  std::pair<Object const*, Object const*> const pairs[] = {{&array, &fullArray},
                                                           {&dictionary, &fullDictionary}};
  for (auto const& [holed, full] : pairs) {
    auto const copy = Object::Copy(*holed);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->EqualTo(*holed));
    EXPECT_FALSE(holed->EqualTo(*full));
    EXPECT_FALSE(full->EqualTo(*holed));
  }
}

TEST(Containers, CompareSizesKeysElementsAndSchemasButNotOtherKinds) {
  Array<Object> const array(Objects{MakeInt(1), MakeString("x")});
  Dictionary<Object> const dictionary(Properties{{"x", MakeInt(1)}, {"y", MakeString("s")}});
  Required const pair{Int32Schema, StringSchema};
  EXPECT_TRUE(array.EqualTo(Array<Object>(Objects{MakeInt(1), MakeString("x")})));
  EXPECT_TRUE(dictionary.EqualTo(
      Dictionary<Object>(Properties{{"y", MakeString("s")}, {"x", MakeInt(1)}})));
  EXPECT_FALSE(array.EqualTo(Array<Object>(Objects{MakeInt(1)})));
  EXPECT_FALSE(array.EqualTo(Array<Object>(Objects{MakeInt(1), MakeString("y")})));
  EXPECT_FALSE(array.EqualTo(Array<Object>(pair, {MakeInt(1), MakeString("x")})));
  EXPECT_FALSE(dictionary.EqualTo(
      Dictionary<Object>(Properties{{"x", MakeInt(1)}, {"z", MakeString("s")}})));
  EXPECT_FALSE(dictionary.EqualTo(
      Dictionary<Object>(Properties{{"x", MakeInt(2)}, {"y", MakeString("s")}})));
  EXPECT_FALSE(dictionary.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(1)}})));
  EXPECT_FALSE(dictionary.EqualTo(Dictionary<Object>(
      DictionaryId(), StringSchema, Properties{{"x", MakeInt(1)}, {"y", MakeString("s")}})));
  EXPECT_THROW(static_cast<void>(array.EqualTo(Int32(5))), BadCast);
  EXPECT_THROW(static_cast<void>(dictionary.EqualTo(Int32(1))), BadCast);
}

TEST(Containers, CopyDeeplyWithTheirSchemasAndTheSchemasOfTheirElements) {
  auto const nested = std::make_shared<Array<Object>>(Int32Schema, Objects{MakeInt(1)});
  Array<Object> const array(Required(ArraySchema.GetType(), {Int32Schema}), {nested});
  Dictionary<Object> const dictionary(DictionaryId(), ArraySchema, Properties{{"list", nested}});
  Array<Object> arrayCopy;
  arrayCopy.Set(array);
  Dictionary<Object> dictionaryCopy;
  dictionaryCopy.Set(dictionary);
  // Equal values compare their schemas too.
  EXPECT_NE(arrayCopy.Get(0), nested);
  EXPECT_NE(dictionaryCopy.Get("list"), nested);
  EXPECT_TRUE(arrayCopy.EqualTo(array));
  EXPECT_TRUE(dictionaryCopy.EqualTo(dictionary));
}

TEST(Containers, AFailedCopyNamesTheCauseAndLeavesTheTargetAsItWas) {
  Array<Object> array(Objects{MakeInt(1)});
  Dictionary<Object> dictionary(Properties{{"b", MakeInt(1)}});
  Snapshot const arrayBefore = Snapshot::Of(array);
  Snapshot const dictionaryBefore = Snapshot::Of(dictionary);
  EXPECT_EQ(MessageOf<BadCast>([&] { array.Set(Int32(5)); }),
            "Failed to cast the runtime object from 'ryx.object.Int32' to a 'ryx.object.Array'");
  EXPECT_THROW(dictionary.Set(Int32(1)), BadCast);
  EXPECT_EQ(MessageOf<std::runtime_error>([&] {
              array.Set(Array<Object>(Objects{MakeInt(1), std::make_shared<Unregistered>()}));
            }),
            "Failed to copy array element '");
  EXPECT_EQ(
      MessageOf<std::runtime_error>([&] {
        dictionary.Set(Dictionary<Object>(Properties{{"odd", std::make_shared<Unregistered>()}}));
      }),
      "Failed to copy dictionary element 'odd': ");
  EXPECT_EQ(Snapshot::Of(array), arrayBefore);
  EXPECT_EQ(Snapshot::Of(dictionary), dictionaryBefore);
  // A per-position schema cannot describe a dictionary's values: such a
  // source is refused once the entries went, and the target is left empty.
  Dictionary<Object> const perPosition(DictionaryId(), Required{Int32Schema},
                                       Properties{{"a", MakeInt(1)}});
  EXPECT_EQ(InvalidArgumentOf([&] { dictionary.Set(perPosition); }), SizeMismatch);
  EXPECT_TRUE(dictionary.Empty());
  EXPECT_EQ(dictionary.GetRequired(), Required());
}

// Construction, Set, Append, Prepend and Insert each check what they add.
TEST(Array, EveryPathRefusesANullOrMismatchedElementAndKeepsTheArray) {
  EXPECT_EQ(InvalidArgumentOf([] { Array<Object>(Objects{MakeInt(1), nullptr}); }), NullObject);
  EXPECT_EQ(InvalidArgumentOf([] {
              Array<Object>(Int32Schema, {MakeInt(1), MakeBool(true)});
            }),
            "The object 'ryx.object.Bool' did not match the required type 'ryx.object.Int32'");
  Array<Object> array(Int32Schema, {MakeInt(1), MakeInt(2)});
  Snapshot const before = Snapshot::Of(array);
  EXPECT_EQ(InvalidArgumentOf([&] { array.Set(0, nullptr); }),
            "Cannot set null object pointers in an array");
  EXPECT_EQ(InvalidArgumentOf([&] { array.Append(nullptr); }), NullObject);
  EXPECT_EQ(InvalidArgumentOf([&] { array.Prepend(nullptr); }), NullObject);
  EXPECT_EQ(InvalidArgumentOf([&] { array.Insert(0, {MakeInt(1), nullptr}); }), NullObject);
  EXPECT_THROW(array.Append(MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.Prepend(MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.Insert(1, {MakeInt(3), MakeBool(true)}), std::invalid_argument);
  EXPECT_THROW(array.Set(0, MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.SetRequired(StringSchema), std::invalid_argument);
  EXPECT_EQ(Snapshot::Of(array), before);
}

TEST(Array, APerPositionSchemaChecksTheWholeListAgainstItsChildren) {
  Required const pair{Int32Schema, StringSchema};
  EXPECT_EQ(InvalidArgumentOf([&] { Array<Object>(pair, {MakeInt(1)}); }), SizeMismatch);
  // SetRequired checks the elements held before it replaces the schema.
  Array<Object> array(Objects{MakeInt(1), MakeString("a")});
  EXPECT_THROW(array.SetRequired(Int32Schema), std::invalid_argument);
  array.SetRequired(pair);
  array.Set(1, MakeString("b"));
  Snapshot const before = Snapshot::Of(array);
  // The schema test comes before the range test.
  EXPECT_EQ(InvalidArgumentOf([&] { array.Set(2, MakeInt(3)); }),
            "Required with null type can only be as large as the number of Required children");
  EXPECT_EQ(InvalidArgumentOf([&] { array.Append(MakeInt(3)); }), SizeMismatch);
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

// The C tests check Insert's and Pop's bounds, and the messages of the rest.
TEST(Array, ReportsTheIndexAndSizeOfAnOutOfRangeAccess) {
  Array<Object> array(Objects{MakeInt(0), MakeInt(1), MakeInt(2)});
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { array.Get(3); }),
            "The index is out of range: 3 >= 3");
  EXPECT_THROW(array.Set(3, MakeInt(9)), std::out_of_range);
}

// A made container takes a single child as its schema; a per-position one
// cannot describe a dictionary's values. Nothing is made of a null or
// unregistered type.
TEST(Containers, RequiredMakesAnEmptyValueCarryingASingleChildAsItsSchema) {
  Required const pair{Int32Schema, StringSchema};
  std::pair<Required, Required> const cases[] = {
      {Required(Object::TypeIdOf<Double>()), Required()},
      {Required(ArraySchema.GetType(), {Int32Schema}), Int32Schema},
      {Required(ArraySchema.GetType(), {Int32Schema, StringSchema}), Required()},
      {Required(ArraySchema.GetType(), {pair}), pair},
      {Required(DictionaryId(), {Int32Schema}), Int32Schema},
  };
  for (auto const& [schema, expected] : cases) {
    auto const made = schema.Make();
    ASSERT_TRUE(made && made->GetType() == schema.GetType());
    EXPECT_EQ(made->GetRequired(), expected);
  }
  EXPECT_THROW(Required(DictionaryId(), {Required{Int32Schema}}).Make(), std::invalid_argument);
  for (Required const& none :
       {Required(), pair, Required(ryx::hash::MurmurThree32::MakeData("x"))}) {
    EXPECT_EQ(none.Make(), nullptr);
  }
}

// Construction refuses null values but does not check the schema; Insert
// checks the value, a per-position schema as a whole, then the key.
TEST(Dictionary, InsertChecksTheValueThenTheKeyAndKeepsTheFirstValue) {
  EXPECT_EQ(InvalidArgumentOf([] {
              Dictionary<Object>(Properties{{"a", nullptr}});
            }),
            "Must provide valid object pointers when creating a dictionary");
  auto const first = MakeBool(true);
  Dictionary<Object> dictionary(DictionaryId(), Int32Schema, Properties{{"a", first}});
  Snapshot const before = Snapshot::Of(dictionary);
  EXPECT_THROW(dictionary.Insert("a", MakeBool(true)), std::invalid_argument);
  EXPECT_EQ(InvalidArgumentOf([&] { dictionary.Insert("b", nullptr); }), NullObject);
  EXPECT_THROW(dictionary.Insert("a", MakeInt(2)), std::logic_error);
  EXPECT_EQ(Snapshot::Of(dictionary), before);
  Dictionary<Object> perPosition(DictionaryId(), Required{Int32Schema, StringSchema}, Properties{});
  perPosition.Insert("a", MakeBool(true));
  EXPECT_EQ(perPosition.Size(), 1u);
}

TEST(Property, HoldsAKeyAndANonNullObject) {
  auto const value = MakeInt(1);
  dictionary::Property property("k", value);
  EXPECT_EQ(property.GetKey(), "k");
  EXPECT_EQ(property.GetObject(), value);  // a copy: the property keeps its own
  EXPECT_EQ(std::move(property).GetObject(), value);
  EXPECT_EQ(InvalidArgumentOf([] { dictionary::Property("k", nullptr); }),
            "Cannot create a property with a null object pointer");
}

}  // namespace
