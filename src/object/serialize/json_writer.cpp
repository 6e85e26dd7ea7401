#include "object/serialize/detail/json_writer.hpp"

#include <ryx/object/required.hpp>

#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/prefetch.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/json_allocator.hpp"
#include "object/serialize/detail/string_output.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/record_memo.hpp"
#include "object/serialize/detail/type_record.hpp"

namespace ryx::object::detail {

namespace {

// The settings of cereal's JSON output archive with its default options.
constexpr char IndentChar = ' ';
constexpr unsigned IndentLength = 4;
constexpr int MaxDecimalPlaces = 324;

using rapidjson::SizeType;

// rapidjson's Writer or PrettyWriter, which also copies text already written
// as JSON (member names, the registered type names) in one piece, after the
// same separator and indentation as any other value.
template <class Base, bool Pretty>
class LiteralWriter : public Base {
 public:
  using Base::Base;

  void Literal(std::string_view json, rapidjson::Type type) {
    if constexpr (Pretty) {
      this->PrettyPrefix(type);
    } else {
      this->Prefix(type);
    }
    // A literal is never the whole document, so nothing needs flushing.
    this->os_->Write(json.data(), json.size());
  }
};

using Ch = rapidjson::UTF8<>;
using CompactWriter = LiteralWriter<
    rapidjson::Writer<StringOutput, Ch, Ch, JsonStackAllocator, rapidjson::kWriteDefaultFlags>,
    false>;
using IndentedWriter =
    LiteralWriter<rapidjson::PrettyWriter<StringOutput, Ch, Ch, JsonStackAllocator,
                                          rapidjson::kWriteDefaultFlags>,
                  true>;

template <class Writer>
class DirectWriter {
 public:
  explicit DirectWriter(Writer& writer) : writer(writer) {}

  // The value's members in the root object; false for a value only the
  // archive can write.
  [[nodiscard]] bool Node(Object const* value) {
    writer.StartObject();
    if (!Members(value)) {
      return false;
    }
    writer.EndObject();
    return true;
  }

 private:
  [[nodiscard]] bool Members(Object const* value) {
    NestingGuard const level(Nesting::value);
    if (value == nullptr) {
      Name("typename");
      writer.String("", 0);
      return true;
    }
    RecordMemo::Entry const* const record = records.Find(value->GetType());
    if (record == nullptr) {
      ThrowNotRegistered(*value);
    }
    switch (record->direct.jsonSave) {
      case LibraryKind::none:
        throw std::runtime_error("No serialization function available: " + record->name);
      case LibraryKind::other:
        return false;
      case LibraryKind::Bool:
        return WritePrimitive<Bool>(*value, *record);
      case LibraryKind::Int8:
        return WritePrimitive<Int8>(*value, *record);
      case LibraryKind::Int16:
        return WritePrimitive<Int16>(*value, *record);
      case LibraryKind::Int32:
        return WritePrimitive<Int32>(*value, *record);
      case LibraryKind::Int64:
        return WritePrimitive<Int64>(*value, *record);
      case LibraryKind::UInt8:
        return WritePrimitive<UInt8>(*value, *record);
      case LibraryKind::UInt16:
        return WritePrimitive<UInt16>(*value, *record);
      case LibraryKind::UInt32:
        return WritePrimitive<UInt32>(*value, *record);
      case LibraryKind::UInt64:
        return WritePrimitive<UInt64>(*value, *record);
      case LibraryKind::Float:
        return WritePrimitive<Float>(*value, *record);
      case LibraryKind::Double:
        return WritePrimitive<Double>(*value, *record);
      case LibraryKind::String:
        return WritePrimitive<String>(*value, *record);
      case LibraryKind::Array:
        return WriteKind<ArrayKind>(*value, *record);
      case LibraryKind::Dictionary:
        return WriteKind<DictionaryKind>(*value, *record);
      case LibraryKind::Enum:
        return WriteKind<EnumKind>(*value, *record);
      case LibraryKind::Pointer:
        return WriteKind<PointerKind>(*value, *record);
      case LibraryKind::ConstPointer:
        return WriteKind<ConstPointerKind>(*value, *record);
    }
    return false;
  }

  // The type record; false when the record's function is of another kind
  // than the value (its checked cast would throw in the archive).
  template <class T>
  [[nodiscard]] bool TypeRecord(Object const& value, RecordMemo::Entry const& record) {
    if (!value.Is<T>()) {
      return false;
    }
    Name("typename");
    writer.Literal(record.direct.quotedName, rapidjson::kStringType);
    return true;
  }

  template <class T>
  [[nodiscard]] bool WritePrimitive(Object const& value, RecordMemo::Entry const& record) {
    if (!TypeRecord<T>(value, record)) {
      return false;
    }
    Name("value");
    Scalar(static_cast<T const&>(value).Get());
    return true;
  }

  // Each C++ type goes to the writer call that cereal's archive picks for it.
  void Scalar(bool value) { writer.Bool(value); }
  void Scalar(signed char value) { writer.Int(value); }
  void Scalar(short value) { writer.Int(value); }
  void Scalar(int value) { writer.Int(value); }
  void Scalar(long value) { writer.Int64(value); }
  void Scalar(unsigned char value) { writer.Int(value); }
  void Scalar(unsigned short value) { writer.Int(value); }
  void Scalar(unsigned value) { writer.Uint(value); }
  void Scalar(unsigned long value) { writer.Uint64(value); }
  void Scalar(float value) { writer.Double(value); }
  void Scalar(double value) { writer.Double(value); }
  void Scalar(std::string const& value) { Text(value); }

  template <class T>
  [[nodiscard]] bool WriteKind(Object const& value, RecordMemo::Entry const& record) {
    if (!TypeRecord<T>(value, record)) {
      return false;
    }
    return Fields(static_cast<T const&>(value));
  }

  [[nodiscard]] bool Fields(ArrayKind const& array) {
    Name("required");
    Schema(array.GetRequired());
    Name("objects");
    writer.StartArray();
    ArrayKind::Objects const& objects = array.GetObjects();
    for (std::size_t index = 0; index != objects.size(); ++index) {
      PrefetchAhead(objects, index);
      if (!Node(objects[index].get())) {
        return false;
      }
    }
    writer.EndArray();
    return true;
  }

  [[nodiscard]] bool Fields(DictionaryKind const& dictionary) {
    Name("properties");
    writer.StartArray();
    for (auto const& [key, child] : dictionary.GetProperties()) {
      writer.StartObject();
      Name("key");
      Text(key);
      Name("value");
      if (!Node(child.get())) {
        return false;
      }
      writer.EndObject();
    }
    writer.EndArray();
    Name("required");
    Schema(dictionary.GetRequired());
    return true;
  }

  [[nodiscard]] bool Fields(EnumKind const& enumerator) {
    Name("type");
    writer.Uint(enumerator.GetEnumType().GetValue());
    Name("value");
    writer.Uint64(enumerator.GetRawValue());
    return true;
  }

  template <class T>
  [[nodiscard]] bool Fields(object::Pointer<Object, T> const& pointer) {
    Name("type");
    writer.Uint(pointer.GetPointeeType().GetValue());
    return true;
  }

  void Schema(Required const& required) {
    NestingGuard const level(Nesting::schema);
    writer.StartObject();
    Name("type");
    writer.Uint(required.GetType().GetValue());
    Name("child_types");
    writer.StartArray();
    for (Required const& child : required.GetChildTypes()) {
      Schema(child);
    }
    writer.EndArray();
    writer.EndObject();
  }

  // Member names are plain ASCII: quoted, they are their JSON text.
  template <std::size_t Size>
  void Name(char const (&name)[Size]) {
    char quoted[Size + 1];
    quoted[0] = '"';
    std::memcpy(quoted + 1, name, Size - 1);
    quoted[Size] = '"';
    writer.Literal(std::string_view(quoted, Size + 1), rapidjson::kStringType);
  }

  // The archive hands the writer a 32-bit length.
  void Text(std::string const& text) {
    writer.String(text.data(), static_cast<SizeType>(text.size()));
  }

  Writer& writer;
  RecordMemo records;
};

template <class Writer>
bool Write(Object const* value, Writer& writer) {
  writer.SetMaxDecimalPlaces(MaxDecimalPlaces);
  return DirectWriter<Writer>(writer).Node(value);
}

}  // namespace

bool WriteJson(Object const* value, JsonLayout layout, std::string& text) {
  StringOutput out;
  JsonStackAllocator allocator;
  bool written = false;
  if (layout == JsonLayout::Indented) {
    IndentedWriter writer(out, &allocator);
    writer.SetIndent(IndentChar, IndentLength);
    written = Write(value, writer);
  } else {
    CompactWriter writer(out, &allocator);
    written = Write(value, writer);
  }
  if (written) {
    text = out.Take();
  }
  return written;
}

}  // namespace ryx::object::detail
