#include "object/container_test_support.hpp"

#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;
using namespace ryx::object::testing;
using Properties = Dictionary<Object>::Properties;

TEST(Dictionary, StartsEmptyUnderTheDefaultSchema) {
  Dictionary<Object> const constructed{Properties{}};
  auto const made = Object::Make(Object::TypeIdOf<Dictionary<Object>>());
  ASSERT_TRUE(made);
  for (Object const* dictionary : {static_cast<Object const*>(&constructed), static_cast<Object const*>(made.get())}) {
    EXPECT_TRUE(dictionary->Is<Dictionary<Object>>());
    EXPECT_EQ(dictionary->GetRequired(), Required());
    EXPECT_TRUE(dictionary->Begin() == dictionary->End());
  }
}

TEST(Dictionary, WalksEachValueOnceAndNeverAKey) {
  auto const a = MakeInt(1);
  auto const b = MakeInt(2);
  auto const c = MakeString("c");
  Dictionary<Object> const dictionary(Properties{{"a", a}, {"b", b}, {"c", c}});
  std::vector<Object const*> seen;
  for (Object const& value : dictionary) {
    seen.push_back(&value);
  }
  std::sort(seen.begin(), seen.end());
  std::vector<Object const*> expected{a.get(), b.get(), c.get()};
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(seen, expected);
}

TEST(Dictionary, ConstructionRefusesNullValuesButDoesNotCheckTheSchema) {
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Dictionary<Object>(Properties{{"a", nullptr}}); }),
            "Must provide valid object pointers when creating a dictionary");
  Dictionary<Object> const unchecked(Object::TypeIdOf<Dictionary<Object>>(), Int32Schema,
                                     Properties{{"flag", MakeBool(true)}});
  EXPECT_EQ(unchecked.Size(), 1u);
  EXPECT_EQ(unchecked.GetRequired(), Int32Schema);
}

TEST(Dictionary, InsertRefusesAnExistingKeyAndKeepsTheFirstValue) {
  auto const first = MakeInt(1);
  Dictionary<Object> dictionary;
  dictionary.Insert("a", first);
  Snapshot const before = Snapshot::Of(dictionary);
  EXPECT_EQ(MessageOf<std::logic_error>([&] { dictionary.Insert("a", MakeInt(2)); }),
            "The key has already been inserted into the dictionary");
  EXPECT_EQ(Snapshot::Of(dictionary), before);
  EXPECT_EQ(dictionary.Get("a"), first);
  dictionary.Insert("", MakeInt(3));
  EXPECT_TRUE(dictionary.Contains(""));
}

TEST(Dictionary, InsertChecksTheValueBeforeTheKey) {
  Dictionary<Object> dictionary(Object::TypeIdOf<Dictionary<Object>>(), Int32Schema,
                                Properties{{"a", MakeInt(1)}});
  Snapshot const before = Snapshot::Of(dictionary);
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { dictionary.Insert("a", MakeBool(true)); }),
            "The object 'ryx.object.Bool' did not match the required type 'ryx.object.Int32'");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { dictionary.Insert("b", nullptr); }),
            "Must provide a non-null object pointer");
  EXPECT_EQ(Snapshot::Of(dictionary), before);
}

TEST(Dictionary, APerPositionSchemaAppliesAsAWholeToEachInsertedValue) {
  Dictionary<Object> dictionary(Object::TypeIdOf<Dictionary<Object>>(),
                                Required{Int32Schema, StringSchema}, Properties{});
  dictionary.Insert("a", MakeBool(true));
  EXPECT_EQ(dictionary.Size(), 1u);
}

TEST(Dictionary, PopReturnsTheValueOrNamesTheMissingKey) {
  auto const value = MakeInt(1);
  Dictionary<Object> dictionary(Properties{{"a", value}});
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { dictionary.Pop("missing"); }),
            "Key was not found in the dictionary: missing");
  EXPECT_EQ(dictionary.Size(), 1u);
  EXPECT_EQ(dictionary.Pop("a"), value);
  EXPECT_TRUE(dictionary.Empty());
  EXPECT_EQ(value.use_count(), 1);
}

TEST(Dictionary, OffersEntryAccessWithoutSchemaChecks) {
  auto const first = MakeInt(1);
  auto const second = MakeBool(true);
  Dictionary<Object> dictionary(Object::TypeIdOf<Dictionary<Object>>(), Int32Schema, Properties{});
  dictionary.Assign("k", first);
  std::shared_ptr<Object>* const slot = dictionary.GetSlot("k");
  ASSERT_NE(slot, nullptr);
  dictionary.Assign("k", second);
  EXPECT_EQ(*slot, second);
  EXPECT_EQ(first.use_count(), 1);
  EXPECT_TRUE(dictionary.ContainsObject(second.get()));
  EXPECT_FALSE(dictionary.ContainsObject(first.get()));
  EXPECT_EQ(dictionary.GetSlot("absent"), nullptr);
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { dictionary.Assign("k", nullptr); }),
            "Cannot set null object pointers in an dictionary");
  EXPECT_EQ(*slot, second);
  dictionary.Reserve(100);
  dictionary.Clear();
  EXPECT_TRUE(dictionary.Empty());
  EXPECT_EQ(second.use_count(), 1);
}

TEST(Dictionary, CopiesDeeplyWithItsSchema) {
  auto const nested = std::make_shared<Array<Object>>(Array<Object>::Objects{MakeInt(1)});
  Dictionary<Object> const source(Object::TypeIdOf<Dictionary<Object>>(), ArraySchema,
                                  Properties{{"list", nested}});
  Dictionary<Object> copy;
  copy.Set(source);
  EXPECT_EQ(copy.GetRequired(), ArraySchema);
  EXPECT_NE(copy.Get("list"), nested);
  EXPECT_TRUE(copy.Get("list")->EqualTo(*nested));
  EXPECT_TRUE(copy.EqualTo(source));
}

TEST(Dictionary, CopyingFromAPerPositionSchemaFailsAndLeavesTheTargetEmpty) {
  Dictionary<Object> const source(Object::TypeIdOf<Dictionary<Object>>(), Required{Int32Schema},
                                  Properties{{"a", MakeInt(1)}});
  Dictionary<Object> target(Properties{{"b", MakeInt(2)}});
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { target.Set(source); }),
            "Array size must be the same as Required size for Required with null type.");
  EXPECT_TRUE(target.Empty());
  EXPECT_EQ(target.GetRequired(), Required());
}

TEST(Dictionary, ReportsAValueThatCannotBeCopiedAndStaysAsItWas) {
  Dictionary<Object> const source(Properties{{"odd", std::make_shared<Unregistered>()}});
  auto const kept = MakeInt(1);
  Dictionary<Object> target(Properties{{"b", kept}});
  Snapshot const before = Snapshot::Of(target);
  EXPECT_EQ(MessageOf<std::runtime_error>([&] { target.Set(source); }),
            "Failed to copy dictionary element 'odd': ");
  EXPECT_EQ(Snapshot::Of(target), before);
  EXPECT_THROW(target.Set(Int32(1)), BadCast);
  EXPECT_EQ(Snapshot::Of(target), before);
}

TEST(Dictionary, CopiesAndComparesANullValueLeftByLoadingAsNull) {
  Dictionary<Object> source(Object::TypeIdOf<Dictionary<Object>>(), Int32Schema,
                            Properties{{"a", MakeInt(1)}, {"b", MakeInt(2)}});
  *source.GetSlot("b") = nullptr;  // what loading a null record leaves
  Dictionary<Object> copy;
  copy.Set(source);
  ASSERT_EQ(copy.Size(), 2u);
  EXPECT_EQ(copy.Get("b"), nullptr);
  EXPECT_TRUE(copy.EqualTo(source));
}

TEST(Dictionary, ComparesKeysValuesAndSchema) {
  Dictionary<Object> const a(Properties{{"x", MakeInt(1)}, {"y", MakeString("s")}});
  EXPECT_TRUE(a.EqualTo(Dictionary<Object>(Properties{{"y", MakeString("s")}, {"x", MakeInt(1)}})));
  EXPECT_FALSE(a.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(1)}, {"z", MakeString("s")}})));
  EXPECT_FALSE(a.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(2)}, {"y", MakeString("s")}})));
  EXPECT_FALSE(a.EqualTo(Dictionary<Object>(Properties{{"x", MakeInt(1)}})));
  EXPECT_FALSE(a.EqualTo(Dictionary<Object>(Object::TypeIdOf<Dictionary<Object>>(), StringSchema,
                                            Properties{{"x", MakeInt(1)}, {"y", MakeString("s")}})));
  EXPECT_THROW(static_cast<void>(a.EqualTo(Int32(1))), BadCast);
}

TEST(Dictionary, RequiredMakesOneCarryingASingleChildAsItsSchema) {
  Required const dictionaryOfInts(Object::TypeIdOf<Dictionary<Object>>(), {Int32Schema});
  auto const made = dictionaryOfInts.Make();
  ASSERT_TRUE(made && made->Is<Dictionary<Object>>());
  EXPECT_EQ(made->GetRequired(), Int32Schema);
  Required const perPosition(Object::TypeIdOf<Dictionary<Object>>(), {Required{Int32Schema}});
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { perPosition.Make(); }),
            "Array size must be the same as Required size for Required with null type.");
}

TEST(Property, HoldsAKeyAndANonNullObject) {
  auto const value = MakeInt(1);
  dictionary::Property property("k", value);
  EXPECT_EQ(property.GetKey(), "k");
  EXPECT_EQ(property.GetObject(), value);
  std::shared_ptr<Object> const moved = std::move(property).GetObject();
  EXPECT_EQ(moved, value);
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { dictionary::Property("k", nullptr); }),
            "Cannot create a property with a null object pointer");
}

}  // namespace
