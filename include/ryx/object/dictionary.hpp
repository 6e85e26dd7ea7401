// ryx::object::Dictionary<Object>: the "ryx.object.Dictionary" value, shared
// values under unique string keys, with a schema for the values.
//
// Insert checks the new value against the schema and refuses an existing key;
// construction only refuses null values. Entries have the hash table's own,
// unspecified order; walking visits the values, never the keys. A failed
// Insert or Pop leaves the dictionary exactly as it was. Set(Object const&)
// copies another dictionary deeply.
//
// The accessors below the entry operations serve callers that manage entries
// directly, such as the C interface; they apply no schema check.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/required.hpp>
#include <ryx/type/name.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>

namespace ryx::object {

template <class Base>
class Dictionary;

}  // namespace ryx::object

namespace ryx::type {

template <>
struct Name<object::Dictionary<object::Object>> {
  static constexpr char const* Value = "ryx.object.Dictionary";
};

}  // namespace ryx::type

namespace ryx::object {

namespace detail {
struct ChildRelease;
}  // namespace detail

template <class Base>
class RYX_OBJECT_EXPORT Dictionary : public Base {
public:
  using Properties = std::unordered_map<std::string, std::shared_ptr<Object>>;

  // Empty, under the default schema (which accepts any non-null value).
  Dictionary();
  explicit Dictionary(Properties properties);
  // The entries are not checked against `required`; null values are refused.
  Dictionary(hash::MurmurThree32&& type, Required required, Properties properties);
  // Copies deeply, like Set(Object const&).
  Dictionary(Dictionary const& other);
  Dictionary& operator=(Dictionary const& other);
  // Releases nested containers iteratively: any depth of nesting is safe.
  ~Dictionary() override;

  // Adds a new entry after checking `object` against the schema; throws
  // std::logic_error when `key` is already present.
  void Insert(std::string key, std::shared_ptr<Object> object);
  // Removes and returns the value under `key`; std::out_of_range when absent.
  std::shared_ptr<Object> Pop(std::string const& key);
  // The value under `key`; std::out_of_range when absent.
  std::shared_ptr<Object> const& Get(std::string const& key) const;

  // Checks the entries against `required` (always, also when there are none),
  // then adopts it as the value schema. Nothing changes when the check throws.
  void SetRequired(Required required);

  std::size_t Size() const noexcept { return properties.size(); }
  bool Empty() const noexcept { return properties.empty(); }
  void Clear() noexcept;
  // Room for at least `count` entries without rehashing.
  void Reserve(std::size_t count) { properties.reserve(count); }
  bool Contains(std::string const& key) const { return properties.find(key) != properties.end(); }
  // Whether this very object is the value of some entry (identity).
  bool ContainsObject(Object const* object) const noexcept;
  // Stores `object` under `key`, adding the entry or replacing its value,
  // without consulting the schema. Null objects are refused.
  void Assign(std::string key, std::shared_ptr<Object> object);
  // The value slot of the entry under `key`, or null. It stays valid until that
  // entry is removed.
  std::shared_ptr<Object>* GetSlot(std::string const& key);
  Properties const& GetProperties() const noexcept { return properties; }

  container::ConstIterator Begin() const override;
  container::Iterator Begin() override;
  container::ConstIterator End() const override;
  container::Iterator End() override;
  Required const& GetRequired() const override { return required; }
  // Deep copy from another dictionary; BadCast when `other` is not one.
  void Set(Object const& other) override;
  // The same key set, EqualTo values under each key (two nulls are equal, a
  // null and a value are not) and equal schemas. BadCast when `other` is not a
  // dictionary.
  bool EqualTo(Object const& other) const override;

  // Defined by the serialization sources for each archive they support.
  template <class Archive>
  void Serialize(Archive& archive) const;
  template <class Archive>
  void Serialize(Archive& archive);

private:
  friend struct detail::ChildRelease;

  Properties properties;
  Required required;
};

extern template class RYX_OBJECT_EXPORT Dictionary<Object>;

}  // namespace ryx::object
