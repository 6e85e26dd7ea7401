// ryx::object::Array<Object>: the "ryx.object.Array" value, an ordered list of
// shared values under an element schema.
//
// Every path that adds elements (the constructors, Set, Append, Prepend,
// Insert) hands the new elements, as one list, to the schema's sequence check
// and refuses null elements; removal never checks. A failed operation leaves
// the array exactly as it was. Set(Object const&) copies another array deeply.
//
// The accessors below the element operations (size, capacity, slots, identity
// search, popping at either end) serve callers that manage storage directly,
// such as the C interface; they apply no schema check.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/required.hpp>
#include <ryx/type/name.hpp>

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <vector>

namespace ryx::object {

template <class Base>
class Array;

}  // namespace ryx::object

namespace ryx::type {

template <>
struct Name<object::Array<object::Object>> {
  static constexpr char const* Value = "ryx.object.Array";
};

}  // namespace ryx::type

namespace ryx::object {

namespace detail {
struct ChildRelease;
}  // namespace detail

template <class Base>
class RYX_OBJECT_EXPORT Array : public Base {
public:
  using Objects = std::vector<std::shared_ptr<Object>>;

  // Empty, under the default schema (which accepts any non-null element).
  Array();
  explicit Array(Objects objects);
  Array(Required required, std::initializer_list<std::shared_ptr<Object>> objects);
  Array(Required required, Objects objects);
  // Copies deeply, like Set(Object const&).
  Array(Array const& other);
  Array& operator=(Array const& other);
  // Releases nested containers iteratively: any depth of nesting is safe.
  ~Array() override;

  // Replaces the element at `index`. Under a per-position schema the element
  // is checked against the child of its index.
  void Set(std::size_t index, std::shared_ptr<Object> object);
  void Append(std::shared_ptr<Object> object);
  void Prepend(std::shared_ptr<Object> object);
  // Inserts the list before `index`; `index` equal to the size appends.
  void Insert(std::size_t index, std::initializer_list<std::shared_ptr<Object>> objects);
  void Insert(std::size_t index, Objects const& objects);
  // Removes and returns the element at `index`.
  std::shared_ptr<Object> Pop(std::size_t index);
  // The element at `index`; throws std::out_of_range past the end.
  std::shared_ptr<Object> const& Get(std::size_t index) const;

  // Checks the elements held (if any) against `required`, then adopts it as the
  // element schema. Nothing changes when the check throws.
  void SetRequired(Required required);

  std::size_t Size() const noexcept { return objects.size(); }
  bool Empty() const noexcept { return objects.empty(); }
  std::size_t Capacity() const noexcept { return objects.capacity(); }
  void Reserve(std::size_t capacity) { objects.reserve(capacity); }
  // Best effort: an allocation failure keeps the larger storage.
  void Shrink() noexcept;
  void Clear() noexcept;
  // Whether this very object is an element (identity, not equality).
  bool Contains(Object const* object) const noexcept;
  // Removing at either end throws std::logic_error on an empty array.
  std::shared_ptr<Object> PopBack();
  std::shared_ptr<Object> PopFront();
  // The storage slot of the element at `index`, or null past the end. It stays
  // valid until the array's storage changes.
  std::shared_ptr<Object>* GetSlot(std::size_t index) noexcept;
  Objects const& GetObjects() const noexcept { return objects; }

  container::ConstIterator Begin() const override;
  container::Iterator Begin() override;
  container::ConstIterator End() const override;
  container::Iterator End() override;
  Required const& GetRequired() const override { return required; }
  // Deep copy from another array; BadCast when `other` is not an array.
  void Set(Object const& other) override;
  // Same length, element-wise EqualTo in index order (two nulls are equal, a
  // null and a value are not) and equal schemas. BadCast when `other` is not
  // an array.
  bool EqualTo(Object const& other) const override;

  // Defined by the serialization sources for each archive they support.
  template <class Archive>
  void Serialize(Archive& archive) const;
  template <class Archive>
  void Serialize(Archive& archive);

private:
  friend struct detail::ChildRelease;

  void CheckOne(std::shared_ptr<Object> const& object) const;

  Objects objects;
  Required required;
};

extern template class RYX_OBJECT_EXPORT Array<Object>;

}  // namespace ryx::object
