// ryx::object::Object: the abstract base of every dynamic value.
//
// A value carries its type id, the MurmurHash3 of its class's dotted type name,
// and is always held by std::shared_ptr. Is<T>() and a successful As<T>()
// compare that id with T's compile-time id: no lock, no allocation, no RTTI.
// The static lookups (TypeName, Make, Get...Functions) read the process-wide
// type registry under its lock.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/container/const_iterator.hpp>
#include <ryx/object/container/iterator.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/object/options.hpp>
#include <ryx/object/serialize/load_functions.hpp>
#include <ryx/object/serialize/save_functions.hpp>
#include <ryx/type/name.hpp>

#include <functional>
#include <iosfwd>
#include <memory>

namespace ryx::object {

class RYX_OBJECT_EXPORT Object : public std::enable_shared_from_this<Object> {
public:
  // The id of the type named T's type name, computed at compile time.
  template <class T>
  static constexpr hash::MurmurThree32 TypeIdOf() noexcept {
    return hash::MurmurThree32::MakeData(type::Name<T>::Value);
  }

  explicit Object(hash::MurmurThree32 typeId) noexcept : typeId(typeId) {}
  // Copies keep the id and options but start with an empty weak self-reference.
  Object(Object const& other) noexcept
      : std::enable_shared_from_this<Object>(), typeId(other.typeId), options(other.options) {}
  Object(Object&& other) noexcept
      : std::enable_shared_from_this<Object>(), typeId(other.typeId), options(other.options) {}
  Object& operator=(Object const&) = delete;
  Object& operator=(Object&&) = delete;
  virtual ~Object();

  // A value that is not a container walks as empty.
  virtual container::ConstIterator Begin() const;
  virtual container::Iterator Begin();
  virtual container::ConstIterator End() const;
  virtual container::Iterator End();

  // The element schema; the empty schema for every value that is not a container.
  virtual Required const& GetRequired() const;

  // Takes over the value of `other`; throws and changes nothing when it cannot.
  virtual void Set(Object const& other) = 0;
  virtual bool EqualTo(Object const& other) const = 0;

  hash::MurmurThree32 GetType() const noexcept { return typeId; }
  Options& GetOptions() noexcept { return options; }
  Options const& GetOptions() const noexcept { return options; }

  template <class T>
  bool Is() const noexcept {
    constexpr hash::MurmurThree32 id = TypeIdOf<T>();
    return typeId == id;
  }

  // Throws BadCast, naming both types, when the value is not a T.
  template <class T>
  T& As() {
    if (!Is<T>()) {
      ThrowBadCast(typeId, type::Name<T>::Value);
    }
    return static_cast<T&>(*this);
  }
  template <class T>
  T const& As() const {
    if (!Is<T>()) {
      ThrowBadCast(typeId, type::Name<T>::Value);
    }
    return static_cast<T const&>(*this);
  }

  // A new, independent value of the same type and content; empty when the type
  // cannot be made. Exceptions of Set pass through.
  static std::shared_ptr<Object> Copy(Object const& source);
  static std::shared_ptr<Object> Copy(std::shared_ptr<Object const> source);

  // The type record, the first thing a save or load function of any type
  // writes or reads. The const overload writes the member "typename" (the
  // registered type name) into an XML, JSON or template-data archive, and
  // throws std::logic_error for an unregistered class; into a portable binary
  // archive it writes the 32-bit type id. The other reads the record from an
  // XML, JSON or portable binary archive unless `deserializing` is set (Load
  // has read it then); a record naming another type throws
  // std::runtime_error and the object keeps its type. Instantiated inside the
  // library for those archives.
  template <class Archive>
  void Serialize(Archive& archive) const;
  template <class Archive>
  void Serialize(Archive& archive);

  // Registry lookups. Unknown ids give null, empty values or empty functions.
  static char const* TypeName(hash::MurmurThree32 const& id);
  static std::shared_ptr<Object> Make(hash::MurmurThree32 const& id);
  static std::function<std::shared_ptr<Object>()> GetConstructFunction(hash::MurmurThree32 const& id);
  static SaveFunctions GetSaveFunctions(hash::MurmurThree32 const& id);
  static LoadFunctions GetLoadFunctions(hash::MurmurThree32 const& id);

private:
  [[noreturn]] static void ThrowBadCast(hash::MurmurThree32 from, char const* to);

  hash::MurmurThree32 typeId;
  Options options;
};

// {"type":"<type name>","id":<type id>}
RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, Object const& object);

// Range access over any value's children.
inline container::Iterator begin(Object& o) { return o.Begin(); }
inline container::ConstIterator begin(Object const& o) { return o.Begin(); }
inline container::ConstIterator cbegin(Object const& o) { return o.Begin(); }
inline container::Iterator end(Object& o) { return o.End(); }
inline container::ConstIterator end(Object const& o) { return o.End(); }
inline container::ConstIterator cend(Object const& o) { return o.End(); }

// The text that stands for a type id without a registered name.
inline constexpr char const* NotRegistered = "[not-registered]";

}  // namespace ryx::object
