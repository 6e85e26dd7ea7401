// ryx::object::Required: the type schema of the object model.
//
// A type (the null id means any type) and an ordered list of child schemas.
// As a requirement on one value, Check(Object const&) tests the value's type and,
// when there are children, the value's own element schema. As a container's
// element schema, the Check overloads for sequences and maps test the elements:
// a null type with children is a per-position schema (element i must pass child
// i, and there must be exactly as many elements as children); any other schema
// applies as a whole to every element. Every failure is a std::invalid_argument.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/type/traits/is_initializer_list.hpp>
#include <ryx/type/traits/is_map.hpp>
#include <ryx/type/traits/is_vector.hpp>

#include <cstddef>
#include <initializer_list>
#include <iosfwd>
#include <memory>
#include <type_traits>
#include <vector>

namespace ryx::object {

class RYX_OBJECT_EXPORT Required {
public:
  using const_iterator = std::vector<Required>::const_iterator;

  // The validating constructors reject an empty child with
  // "Cannot have empty required types".
  Required() noexcept = default;
  explicit Required(hash::MurmurThree32 type) noexcept : type(type) {}
  explicit Required(std::vector<Required> childTypes);
  Required(std::initializer_list<Required> childTypes);
  Required(hash::MurmurThree32 type, std::vector<Required> childTypes);
  // The range constructors copy the children as they are, without the test.
  Required(hash::MurmurThree32 type, const_iterator const& begin, const_iterator const& end);
  Required(const_iterator const& begin, const_iterator const& end);

  // Copying and comparing walk the whole tree: a schema nested deeper than the
  // nesting limit, or than the thread's stack allows, throws NestingLimitError.
  Required(Required const& other);
  // The source keeps its type and is left with no children.
  Required(Required&& other) noexcept : type(other.type), childTypes(std::move(other.childTypes)) {
    other.childTypes.clear();
  }
  Required& operator=(Required other) noexcept {
    swap(*this, other);
    return *this;
  }
  // Releasing never recurses, however deep a hand-built schema is nested.
  ~Required() {
    if (!childTypes.empty()) {
      ReleaseNested(childTypes);
    }
  }

  friend void swap(Required& a, Required& b) noexcept {
    a.childTypes.swap(b.childTypes);
    a.type.swap(b.type);
  }

  // False exactly for the empty schema: null type, no children.
  explicit operator bool() const noexcept { return type != hash::MurmurThree32() || !childTypes.empty(); }
  bool operator==(Required const& other) const;
  bool operator!=(Required const& other) const { return !(*this == other); }

  hash::MurmurThree32 GetType() const noexcept { return type; }
  std::vector<Required> const& GetChildTypes() const noexcept { return childTypes; }
  const_iterator Begin() const noexcept { return childTypes.begin(); }
  const_iterator End() const noexcept { return childTypes.end(); }

  // The requirement on one value. It does not walk a container's elements: it
  // compares the container's own element schema with the expected one.
  void Check(Object const& object) const;
  // As above; a null pointer fails with "Must provide a non-null object pointer".
  void Check(std::shared_ptr<Object const> const& object) const;

  // This schema as the element schema of a sequence of elements.
  template <class T, std::enable_if_t<type::traits::IsVector<T>::value ||
                                          type::traits::IsInitializerList<T>::value,
                                      int> = 0>
  void Check(T const& elements) const {
    CheckCount(static_cast<std::size_t>(elements.size()));
    std::size_t index = 0;
    for (auto const& element : elements) {
      CheckElement(index++, element.get());
    }
  }

  // This schema as the element schema of a map; the values are checked, in the
  // map's own order.
  template <class T, std::enable_if_t<type::traits::IsMap<T>::value, int> = 0>
  void Check(T const& elements) const {
    CheckCount(static_cast<std::size_t>(elements.size()));
    std::size_t index = 0;
    for (auto const& entry : elements) {
      CheckElement(index++, entry.second.get());
    }
  }

  // A new value that fits the schema, or null when the type is null or cannot
  // be made. A made array or dictionary takes a single child as its element
  // schema (through SetRequired, whose check of a dictionary's entries runs even
  // when there are none: a per-position child therefore throws).
  std::shared_ptr<Object> Make() const;

  // A diagnostic text, not a serialized form:
  // {"types":[<children>], "type:"<type name or id>}. A schema nested too deep
  // for the nesting limit or the stack throws NestingLimitError.
  friend RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, Required const& required);

private:
  bool IsPerPosition() const noexcept {
    return type == hash::MurmurThree32() && !childTypes.empty();
  }
  // Under a per-position schema the number of elements must match.
  void CheckCount(std::size_t count) const {
    if (IsPerPosition() && count != childTypes.size()) {
      ThrowSizeMismatch();
    }
  }
  // Element `index` against its child (per position) or the whole schema.
  void CheckElement(std::size_t index, Object const* element) const {
    (IsPerPosition() ? childTypes[index] : *this).CheckPointer(element);
  }
  void CheckPointer(Object const* object) const;
  static void ReleaseNested(std::vector<Required>& children) noexcept;
  void CheckChildren() const;
  [[noreturn]] static void ThrowSizeMismatch();

  hash::MurmurThree32 type;
  std::vector<Required> childTypes;
};

}  // namespace ryx::object
