// ryx::object::Primitive<T, Object>: a value holding one T.
//
// Twelve instances exist, one per kind (bool, the eight integer widths, float,
// double, std::string), each with its own type name and header. A number or
// boolean takes its value only from a value of its own kind or from a string
// value, which it parses; the object model never converts between numeric
// kinds. Every change goes through the virtual Set(T).
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/parse.hpp>
#include <ryx/type/name.hpp>

#include <string>
#include <type_traits>
#include <utility>

namespace ryx::object {

template <class T, class Base>
class Primitive;

}  // namespace ryx::object

namespace ryx::type {

// The string kind's name is declared here: every primitive parses strings.
template <>
struct Name<object::Primitive<std::string, object::Object>> {
  static constexpr char const* Value = "ryx.object.String";
};

}  // namespace ryx::type

namespace ryx::object {

template <class T, class Base>
class RYX_OBJECT_EXPORT Primitive : public Base {
public:
  using ValueType = T;

  Primitive() : Base(Base::template TypeIdOf<Primitive>()), value() {}
  explicit Primitive(T value) : Base(Base::template TypeIdOf<Primitive>()), value(std::move(value)) {}

  T const& Get() const noexcept { return value; }

  virtual void Set(T newValue);
  // From a value of the same kind, or (numbers and booleans) from a string
  // value through Parse<T>. Throws BadCast for any other kind; the held value
  // is unchanged on every failure.
  void Set(Object const& other) override;
  // Same kind and equal value; floating point compares exactly (NaN equals
  // nothing, +0 equals -0), strings byte for byte.
  bool EqualTo(Object const& other) const override;

private:
  T value;
};

template <class T, class Base>
void Primitive<T, Base>::Set(T newValue) {
  value = std::move(newValue);
}

template <class T, class Base>
void Primitive<T, Base>::Set(Object const& other) {
  using String = Primitive<std::string, Base>;
  if constexpr (!std::is_same_v<T, std::string>) {
    if (other.template Is<String>()) {
      Set(Parse<T>(other.template As<String>().Get()));
      return;
    }
  }
  Set(T(other.template As<Primitive>().Get()));
}

template <class T, class Base>
bool Primitive<T, Base>::EqualTo(Object const& other) const {
  return other.template Is<Primitive>() && other.template As<Primitive>().Get() == value;
}

}  // namespace ryx::object
