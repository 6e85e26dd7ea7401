#include "object/container_test_support.hpp"

#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;
using namespace ryx::object::testing;
using Objects = Array<Object>::Objects;

std::vector<Object const*> ElementsOf(Array<Object> const& array) {
  std::vector<Object const*> elements;
  for (Object const& element : array) {
    elements.push_back(&element);
  }
  return elements;
}

TEST(Array, StartsEmptyUnderTheDefaultSchema) {
  Array<Object> const constructed{Objects{}};
  auto const made = Object::Make(Object::TypeIdOf<Array<Object>>());
  ASSERT_TRUE(made);
  for (Object const* array : {static_cast<Object const*>(&constructed), static_cast<Object const*>(made.get())}) {
    EXPECT_TRUE(array->Is<Array<Object>>());
    EXPECT_EQ(array->GetRequired(), Required());
    EXPECT_TRUE(array->Begin() == array->End());
  }
}

TEST(Array, ConstructionChecksEveryElement) {
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Array<Object>(Objects{MakeInt(1), nullptr}); }),
            "Must provide a non-null object pointer");
  EXPECT_EQ(MessageOf<std::invalid_argument>(
                [] { Array<Object>(Int32Schema, {MakeInt(1), MakeBool(true)}); }),
            "The object 'ryx.object.Bool' did not match the required type 'ryx.object.Int32'");
  Array<Object> const array(Int32Schema, {MakeInt(1), MakeInt(2)});
  EXPECT_EQ(array.Size(), 2u);
}

TEST(Array, ATypedSchemaRejectsAnElementOfAnotherTypeAndKeepsTheArray) {
  auto const kept = MakeInt(1);
  Array<Object> array(Int32Schema, {kept});
  array.Append(MakeInt(2));
  Snapshot const before = Snapshot::Of(array);
  EXPECT_THROW(array.Append(MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.Prepend(MakeBool(true)), std::invalid_argument);
  EXPECT_THROW(array.Insert(1, {MakeInt(3), MakeBool(true)}), std::invalid_argument);
  EXPECT_THROW(array.Set(0, MakeBool(true)), std::invalid_argument);
  EXPECT_EQ(Snapshot::Of(array), before);
}

TEST(Array, APerPositionSchemaChecksEachListAgainstItsChildren) {
  Required const pair{Int32Schema, StringSchema};
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { Array<Object>(pair, {MakeInt(1)}); }),
            "Array size must be the same as Required size for Required with null type.");
  Array<Object> array(pair, {MakeInt(1), MakeString("a")});
  array.Set(1, MakeString("b"));
  Snapshot const before = Snapshot::Of(array);
  // The schema test comes before the range test.
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Set(2, MakeInt(3)); }),
            "Required with null type can only be as large as the number of Required children");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Append(MakeInt(3)); }),
            "Array size must be the same as Required size for Required with null type.");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Insert(0, {MakeString("x"), MakeInt(2)}); }),
            "The object 'ryx.object.String' did not match the required type 'ryx.object.Int32'");
  EXPECT_EQ(Snapshot::Of(array), before);
  array.Insert(0, {MakeInt(0), MakeString("z")});
  EXPECT_EQ(array.Size(), 4u);
}

TEST(Array, AOneChildPerPositionSchemaChecksEveryAddedElementAgainstIt) {
  Array<Object> array(Required{Int32Schema}, {MakeInt(1)});
  array.Append(MakeInt(2));
  array.Prepend(MakeInt(0));
  EXPECT_EQ(array.Size(), 3u);
  EXPECT_THROW(array.Append(MakeString("x")), std::invalid_argument);
}

TEST(Array, ReportsTheIndexAndSizeOfAnOutOfRangeAccess) {
  Array<Object> array(Objects{MakeInt(0), MakeInt(1), MakeInt(2)});
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { array.Set(3, MakeInt(9)); }),
            "The index is out of range: 3 >= 3");
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { array.Insert(4, {MakeInt(9)}); }),
            "The index is out of range: 4 >= 3");
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { array.Pop(3); }), "The index is out of range: 3 >= 3");
  EXPECT_EQ(MessageOf<std::out_of_range>([&] { array.Get(3); }), "The index is out of range: 3 >= 3");
  EXPECT_EQ(array.Size(), 3u);
  array.Insert(3, {MakeInt(3)});
  EXPECT_EQ(array.Size(), 4u);
}

TEST(Array, RefusesNullElementsWithTheMessageOfEachPath) {
  Array<Object> array(Objects{MakeInt(0)});
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Set(0, nullptr); }),
            "Cannot set null object pointers in an array");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Append(nullptr); }),
            "Must provide a non-null object pointer");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Prepend(nullptr); }),
            "Must provide a non-null object pointer");
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { array.Insert(0, {MakeInt(1), nullptr}); }),
            "Must provide a non-null object pointer");
  EXPECT_EQ(array.Size(), 1u);
}

TEST(Array, AddsAndRemovesAtEveryPosition) {
  auto const a = MakeInt(1);
  auto const b = MakeInt(2);
  auto const c = MakeInt(3);
  auto const d = MakeInt(4);
  Array<Object> array(Objects{b});
  array.Prepend(a);
  array.Append(d);
  array.Insert(2, {c});
  EXPECT_EQ(ElementsOf(array), (std::vector<Object const*>{a.get(), b.get(), c.get(), d.get()}));
  EXPECT_EQ(array.Pop(0), a);
  EXPECT_EQ(array.PopBack(), d);
  EXPECT_EQ(array.PopFront(), b);
  EXPECT_EQ(ElementsOf(array), (std::vector<Object const*>{c.get()}));
  array.Set(0, a);
  EXPECT_EQ(c.use_count(), 1);
  EXPECT_EQ(array.Get(0), a);
}

TEST(Array, OffersStorageAccessWithoutSchemaChecks) {
  auto const shared = MakeInt(7);
  Array<Object> array(Int32Schema, {shared, shared});
  EXPECT_TRUE(array.Contains(shared.get()));
  EXPECT_FALSE(array.Contains(MakeInt(7).get()));
  array.Reserve(64);
  EXPECT_GE(array.Capacity(), 64u);
  array.Shrink();
  EXPECT_EQ(array.Capacity(), 2u);
  ASSERT_NE(array.GetSlot(1), nullptr);
  EXPECT_EQ(*array.GetSlot(1), shared);
  EXPECT_EQ(array.GetSlot(2), nullptr);
  array.Reserve(16);
  array.Clear();
  EXPECT_TRUE(array.Empty());
  EXPECT_GE(array.Capacity(), 16u);
  EXPECT_EQ(shared.use_count(), 1);
  EXPECT_EQ(MessageOf<std::logic_error>([&] { array.PopBack(); }),
            "The array has no elements to pop the last element");
  EXPECT_EQ(MessageOf<std::logic_error>([&] { array.PopFront(); }),
            "The array has no elements to pop the first element");
}

TEST(Array, CopiesDeeplyWithItsSchema) {
  auto const nested = std::make_shared<Array<Object>>(Int32Schema, std::initializer_list<std::shared_ptr<Object>>{MakeInt(1)});
  Array<Object> const source(Required(ArraySchema.GetType(), {Int32Schema}), {nested});
  Array<Object> copy;
  copy.Set(source);
  EXPECT_EQ(copy.GetRequired(), source.GetRequired());
  ASSERT_EQ(copy.Size(), 1u);
  EXPECT_NE(copy.Get(0), nested);
  EXPECT_TRUE(copy.Get(0)->EqualTo(*nested));
  EXPECT_EQ(copy.Get(0)->GetRequired(), Int32Schema);
  EXPECT_TRUE(copy.EqualTo(source));
  EXPECT_TRUE(Object::Copy(source)->EqualTo(source));
}

TEST(Array, RefusesToCopyFromAnotherKindAndStaysAsItWas) {
  auto const kept = MakeInt(1);
  Array<Object> array(Objects{kept});
  Snapshot const before = Snapshot::Of(array);
  EXPECT_EQ(MessageOf<BadCast>([&] { array.Set(Int32(5)); }),
            "Failed to cast the runtime object from 'ryx.object.Int32' to a 'ryx.object.Array'");
  EXPECT_THROW(static_cast<void>(array.EqualTo(Int32(5))), BadCast);
  EXPECT_EQ(Snapshot::Of(array), before);
}

TEST(Array, ReportsAnElementThatCannotBeCopied) {
  Array<Object> const source(Objects{MakeInt(1), std::make_shared<Unregistered>()});
  auto const kept = MakeInt(2);
  Array<Object> target(Objects{kept});
  Snapshot const before = Snapshot::Of(target);
  EXPECT_EQ(MessageOf<std::runtime_error>([&] { target.Set(source); }),
            "Failed to copy array element '");
  EXPECT_EQ(Snapshot::Of(target), before);
}

TEST(Array, CopiesAndComparesANullElementLeftByLoadingAsNull) {
  Array<Object> source(Objects{MakeInt(1), MakeInt(2)});
  *source.GetSlot(1) = nullptr;  // what loading a null record leaves
  Array<Object> copy;
  copy.Set(source);
  ASSERT_EQ(copy.Size(), 2u);
  EXPECT_EQ(copy.Get(1), nullptr);
  EXPECT_TRUE(copy.EqualTo(source));
  EXPECT_FALSE(copy.EqualTo(Array<Object>(Objects{MakeInt(1), MakeInt(2)})));
}

TEST(Array, ComparesLengthElementsAndSchema) {
  Array<Object> const a(Objects{MakeInt(1), MakeString("x")});
  EXPECT_TRUE(a.EqualTo(Array<Object>(Objects{MakeInt(1), MakeString("x")})));
  EXPECT_FALSE(a.EqualTo(Array<Object>(Objects{MakeInt(1)})));
  EXPECT_FALSE(a.EqualTo(Array<Object>(Objects{MakeInt(1), MakeString("y")})));
  EXPECT_FALSE(a.EqualTo(Array<Object>(Required{Int32Schema, StringSchema}, {MakeInt(1), MakeString("x")})));
}

TEST(Array, RequiredMakesAnEmptyArrayCarryingASingleChildAsItsSchema) {
  auto const typed = Required(ArraySchema.GetType(), {Int32Schema}).Make();
  ASSERT_TRUE(typed && typed->Is<Array<Object>>());
  EXPECT_EQ(typed->GetRequired(), Int32Schema);
  auto const untyped = Required(ArraySchema.GetType(), {Int32Schema, StringSchema}).Make();
  ASSERT_TRUE(untyped);
  EXPECT_EQ(untyped->GetRequired(), Required());
  auto const perPosition = Required(ArraySchema.GetType(), {Required{Int32Schema, StringSchema}}).Make();
  ASSERT_TRUE(perPosition);
  EXPECT_EQ(perPosition->GetRequired(), (Required{Int32Schema, StringSchema}));
}

TEST(Array, SetRequiredChecksTheElementsHeldFirst) {
  Array<Object> array(Objects{MakeInt(1), MakeString("x")});
  EXPECT_THROW(array.SetRequired(Int32Schema), std::invalid_argument);
  EXPECT_EQ(array.GetRequired(), Required());
  array.SetRequired(Required{Int32Schema, StringSchema});
  EXPECT_EQ(array.GetRequired(), (Required{Int32Schema, StringSchema}));
}

}  // namespace
