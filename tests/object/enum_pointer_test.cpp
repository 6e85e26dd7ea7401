#include "support.hpp"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

enum class Colour : std::uint8_t { Red = 1, Blue = 200 };
enum class Offset : std::int32_t { Back = -2 };

}  // namespace

namespace ryx::type {
template <>
struct Name<Colour> {
  static constexpr char const* Value = "test.Colour";
};
template <>
struct Name<Offset> {
  static constexpr char const* Value = "test.Offset";
};
}  // namespace ryx::type

namespace {

using namespace ryx::object;
using ryx::hash::MurmurThree32;
using ryx::object::testing::MessageOf;
using Dummy = enumeration::Dummy;
using MutablePointer = Pointer<Object, void>;
using ConstPointer = Pointer<Object, void const>;

// Typed access keeps to the enumerator's own enumeration; Set takes another
// enumeration and its value, but no other kind.
TEST(Enum, TypedAccessKeepsToItsOwnEnumerationWhichSetMayChange) {
  Enum<Object> enumerator(Dummy{65535});
  enumerator.SetValue(Dummy{7});
  EXPECT_THROW(enumerator.SetValue(Colour::Red), ryx::type::BadCast);
  EXPECT_EQ(enumerator.GetRawValue(), 7u);
  enumerator.Set(Enum<Object>(Colour::Blue));
  EXPECT_THROW(enumerator.GetValue<Dummy>(), ryx::type::BadCast);
  EXPECT_THROW(enumerator.Set(Int32(1)), BadCast);
  EXPECT_EQ(enumerator.GetValue<Colour>(), Colour::Blue);
  // A signed enumeration's value travels as its 64-bit pattern.
  Enum<Object> const negative(Offset::Back);
  EXPECT_EQ(negative.GetValue<Offset>(), Offset::Back);
  enumerator.Set(negative);
  EXPECT_EQ(enumerator.GetRawValue(), static_cast<std::uint64_t>(-2));
}

TEST(Enum, EqualsOnlyAnEnumeratorOfTheSameEnumerationAndValue) {
  Enum<Object> const one(Dummy{1});
  EXPECT_TRUE(one.EqualTo(Enum<Object>(Dummy{1})));
  EXPECT_FALSE(one.EqualTo(Enum<Object>(Dummy{2})));
  EXPECT_FALSE(one.EqualTo(Enum<Object>(Colour::Red)));  // same value 1
  EXPECT_FALSE(one.EqualTo(Int32(1)));
  // A default enumerator has no enumeration and the value 0; its typed access
  // fails as the C functions show.
  Enum<Object> const none;
  EXPECT_EQ(none.GetEnumType(), MurmurThree32());
  EXPECT_EQ(none.GetRawValue(), 0u);
}

// The first non-null pointee type is fixed. Equal means the same address,
// whatever the pointee types, in values of one kind; a value set from another
// shares its pointee.
TEST(Pointer, FixesTheFirstPointeeTypeAndComparesAddressesOfTheSameKindOnly) {
  MurmurThree32 const a = MurmurThree32::MakeData("test.A");
  MurmurThree32 const b = MurmurThree32::MakeData("test.B");
  auto const p = std::make_shared<int>(1);
  auto const q = std::make_shared<int>(2);
  MutablePointer typed;
  typed.Set(p, a);
  typed.Set(q, a);
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { typed.Set(p, b); }),
            "Cannot set value from pointer of different type");
  EXPECT_EQ(typed.GetPointer(), q);
  EXPECT_EQ(typed.GetPointeeType(), a);
  MutablePointer untyped;
  untyped.Set(p, MurmurThree32());
  untyped.Set(q, b);
  EXPECT_EQ(untyped.GetPointeeType(), b);
  EXPECT_TRUE(typed.EqualTo(untyped));
  untyped.Set(p, b);
  EXPECT_FALSE(typed.EqualTo(untyped));
  ConstPointer constant;
  constant.Set(q, MurmurThree32());
  EXPECT_FALSE(typed.EqualTo(constant));
  EXPECT_FALSE(constant.EqualTo(typed));
  MutablePointer target;
  target.Set(typed);
  EXPECT_EQ(target.GetPointer(), q);
  EXPECT_EQ(target.GetPointeeType(), a);
  EXPECT_THROW(target.Set(ConstPointer()), BadCast);
}

}  // namespace
