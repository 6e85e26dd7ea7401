// ryx::object::Pointer<Object, T>: a value that shares an opaque pointer to
// something outside the object model, with a type id naming the pointee.
//
// Two kinds exist: Pointer<Object, void> ("ryx.object.Pointer") and
// Pointer<Object, void const> ("ryx.object.ConstPointer"). The model never
// dereferences the pointer; it shares ownership, compares by address, and
// guards the pointee type: the first Set with a non-null type id fixes it, and
// a later Set with another id throws. Only the pointee type id is serialized.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/type/name.hpp>

#include <memory>

namespace ryx::object {

template <class Base, class T>
class Pointer;

}  // namespace ryx::object

namespace ryx::type {

template <>
struct Name<object::Pointer<object::Object, void>> {
  static constexpr char const* Value = "ryx.object.Pointer";
};

template <>
struct Name<object::Pointer<object::Object, void const>> {
  static constexpr char const* Value = "ryx.object.ConstPointer";
};

}  // namespace ryx::type

namespace ryx::object {

template <class Base, class T>
class RYX_OBJECT_EXPORT Pointer : public Base {
public:
  // Empty, with no pointee type fixed yet.
  Pointer() noexcept : Base(Base::template TypeIdOf<Pointer>()) {}

  // Fixes the pointee type if none is fixed yet (even to the null id), else
  // requires `type` to equal it (std::invalid_argument otherwise, nothing
  // changed); then shares `pointer`.
  virtual void Set(std::shared_ptr<T> pointer, hash::MurmurThree32 type);
  // Shares the pointee of a value of the same kind; BadCast for any other.
  void Set(Object const& other) override;
  // Same kind and same address; the pointee types are not compared.
  bool EqualTo(Object const& other) const override;

  std::shared_ptr<T> const& GetPointer() const noexcept { return pointer; }
  hash::MurmurThree32 GetPointeeType() const noexcept { return type; }

  // Defined by the serialization sources for each archive they support.
  template <class Archive>
  void Serialize(Archive& archive) const;
  template <class Archive>
  void Serialize(Archive& archive);

private:
  std::shared_ptr<T> pointer;
  hash::MurmurThree32 type;
};

extern template class RYX_OBJECT_EXPORT Pointer<Object, void>;
extern template class RYX_OBJECT_EXPORT Pointer<Object, void const>;

}  // namespace ryx::object
