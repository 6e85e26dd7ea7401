// ryx::object::Enum<Object>: the "ryx.object.Enum" value, one enumerator of an
// enumeration chosen at run time.
//
// It stores the enumeration's identity (the type id of its type name, from
// ryx::type::Name<E>) and the enumerator's value widened to 64 bits. Typed
// access through SetValue<E>/GetValue<E> checks that identity and throws
// ryx::type::BadCast for any other enumeration.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/type/bad_cast.hpp>
#include <ryx/type/name.hpp>

#include <cstdint>
#include <string>
#include <type_traits>

namespace ryx::object {

template <class Base>
class Enum;

}  // namespace ryx::object

namespace ryx::type {

template <>
struct Name<object::Enum<object::Object>> {
  static constexpr char const* Value = "ryx.object.Enum";
};

}  // namespace ryx::type

namespace ryx::object {

template <class Base>
class RYX_OBJECT_EXPORT Enum : public Base {
public:
  // No enumeration yet (the null id) and the value 0.
  Enum() noexcept : Base(Base::template TypeIdOf<Enum>()) {}
  template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
  explicit Enum(E e) noexcept
      : Base(Base::template TypeIdOf<Enum>()), type(Base::template TypeIdOf<E>()), value(ToValue(e)) {}

  // The value is stored as std::uint64_t: zero-extended from an unsigned
  // underlying type, sign-extended (two's complement) from a signed one.
  template <class E>
  void SetValue(E e) {
    CheckEnumeration<E>();
    value = ToValue(e);
  }
  // Converts the stored value to E with static_cast: an enumeration narrower
  // than 64 bits gets the low bits, a signed one their two's complement reading.
  template <class E>
  E GetValue() const {
    CheckEnumeration<E>();
    return static_cast<E>(static_cast<std::underlying_type_t<E>>(value));
  }

  // The enumeration's type id (null until one is set) and the raw value.
  hash::MurmurThree32 GetEnumType() const noexcept { return type; }
  std::uint64_t GetRawValue() const noexcept { return value; }

  // Takes the enumeration and value of another enumerator, whatever its
  // enumeration; BadCast when `other` is not an enumerator.
  void Set(Object const& other) override;
  // Another enumerator of the same enumeration and value; never throws.
  bool EqualTo(Object const& other) const override;

  // Defined by the serialization sources for each archive they support.
  template <class Archive>
  void Serialize(Archive& archive) const;
  template <class Archive>
  void Serialize(Archive& archive);

private:
  template <class E>
  static std::uint64_t ToValue(E e) noexcept {
    return static_cast<std::uint64_t>(static_cast<std::underlying_type_t<E>>(e));
  }
  template <class E>
  void CheckEnumeration() const {
    static_assert(std::is_enum_v<E>, "typed access needs an enumeration");
    if (type != Base::template TypeIdOf<E>()) {
      throw type::BadCast(std::string("Instance of ") + type::Name<E>::Value +
                          " is not the same as the enum stored in this class");
    }
  }

  hash::MurmurThree32 type;
  std::uint64_t value = 0;
};

extern template class RYX_OBJECT_EXPORT Enum<Object>;

}  // namespace ryx::object
