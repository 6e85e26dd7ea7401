#include "object/serialize/detail/binary_writer.hpp"

#include <ryx/object/required.hpp>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/prefetch.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/native_order.hpp"
#include "object/serialize/detail/record_memo.hpp"
#include "object/serialize/detail/string_output.hpp"
#include "object/serialize/detail/type_record.hpp"

namespace ryx::object::detail {

namespace {

class BinaryWriter {
 public:
  explicit BinaryWriter(StringOutput& out) : out(out) {}

  // False for a value only the archive can write.
  [[nodiscard]] bool Value(Object const* value) {
    NestingGuard const level(Nesting::value);
    if (value == nullptr) {
      Number(std::uint32_t(0));
      return true;
    }
    RecordMemo::Entry const* const record = records.Find(value->GetType());
    if (record == nullptr) {
      ThrowNotRegistered(*value);
    }
    switch (record->direct.binarySave) {
      case LibraryKind::none:
        throw std::runtime_error("No serialization function available: " + record->name);
      case LibraryKind::other:
        return false;
      case LibraryKind::Bool:
        return Write<Bool>(*value);
      case LibraryKind::Int8:
        return Write<Int8>(*value);
      case LibraryKind::Int16:
        return Write<Int16>(*value);
      case LibraryKind::Int32:
        return Write<Int32>(*value);
      case LibraryKind::Int64:
        return Write<Int64>(*value);
      case LibraryKind::UInt8:
        return Write<UInt8>(*value);
      case LibraryKind::UInt16:
        return Write<UInt16>(*value);
      case LibraryKind::UInt32:
        return Write<UInt32>(*value);
      case LibraryKind::UInt64:
        return Write<UInt64>(*value);
      case LibraryKind::Float:
        return Write<Float>(*value);
      case LibraryKind::Double:
        return Write<Double>(*value);
      case LibraryKind::String:
        return Write<String>(*value);
      case LibraryKind::Array:
        return Write<ArrayKind>(*value);
      case LibraryKind::Dictionary:
        return Write<DictionaryKind>(*value);
      case LibraryKind::Enum:
        return Write<EnumKind>(*value);
      case LibraryKind::Pointer:
        return Write<PointerKind>(*value);
      case LibraryKind::ConstPointer:
        return Write<ConstPointerKind>(*value);
    }
    return false;
  }

 private:
  // The type id, then the kind's fields; false when the record's function is
  // of another kind than the value (its checked cast would throw).
  template <class T>
  [[nodiscard]] bool Write(Object const& value) {
    if (!value.Is<T>()) {
      return false;
    }
    Number(value.GetType().GetValue());
    return Fields(static_cast<T const&>(value));
  }

  template <class T>
  [[nodiscard]] bool Fields(Primitive<T, Object> const& primitive) {
    Field(primitive.Get());
    return true;
  }

  [[nodiscard]] bool Fields(ArrayKind const& array) {
    Schema(array.GetRequired());
    ArrayKind::Objects const& objects = array.GetObjects();
    Number(std::uint64_t(objects.size()));
    for (std::size_t index = 0; index != objects.size(); ++index) {
      PrefetchAhead(objects, index);
      if (!Value(objects[index].get())) {
        return false;
      }
    }
    return true;
  }

  [[nodiscard]] bool Fields(DictionaryKind const& dictionary) {
    DictionaryKind::Properties const& properties = dictionary.GetProperties();
    Number(std::uint64_t(properties.size()));
    for (auto const& [key, child] : properties) {
      Field(key);
      if (!Value(child.get())) {
        return false;
      }
    }
    Schema(dictionary.GetRequired());
    return true;
  }

  [[nodiscard]] bool Fields(EnumKind const& enumerator) {
    Number(enumerator.GetEnumType().GetValue());
    Number(enumerator.GetRawValue());
    return true;
  }

  template <class T>
  [[nodiscard]] bool Fields(Pointer<Object, T> const& pointer) {
    Number(pointer.GetPointeeType().GetValue());
    return true;
  }

  void Schema(Required const& required) {
    NestingGuard const level(Nesting::schema);
    Number(required.GetType().GetValue());
    Number(std::uint64_t(required.GetChildTypes().size()));
    for (Required const& child : required.GetChildTypes()) {
      Schema(child);
    }
  }

  void Field(bool value) { Number(std::uint8_t(value ? 1 : 0)); }
  void Field(std::string const& value) {
    Number(std::uint64_t(value.size()));
    out.Write(value.data(), value.size());
  }
  template <class T>
  void Field(T value) {
    Number(value);
  }

  template <class T>
  void Number(T value) {
    static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>);
    out.Write(reinterpret_cast<char const*>(&value), sizeof(T));
  }

  StringOutput& out;
  RecordMemo records;
};

}  // namespace

bool WriteBinary(Object const* value, std::string& bytes) {
  StringOutput out;
  out.Put(static_cast<char>(NativeOrderFlag));
  if (!BinaryWriter(out).Value(value)) {
    return false;
  }
  bytes = out.Take();
  return true;
}

}  // namespace ryx::object::detail
