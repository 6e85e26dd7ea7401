#include "object/serialize/detail/json_writer.hpp"

#include <ryx/object/required.hpp>

#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>

#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/json_walk.hpp"
#include "object/serialize/detail/json_writers.hpp"

namespace ryx::object::detail {

namespace {

// cereal's JSON output archive writes doubles at this precision.
constexpr int MaxDecimalPlaces = 324;

using rapidjson::SizeType;

// The typed form: every value an object of "typename" and its kind's
// members, written as the registered save functions write them through the
// archive, member for member and number kind for number kind.
template <class Writer>
class TypedJson {
 public:
  explicit TypedJson(Writer& writer) : writer(writer) {}

  static LibraryKind KindOf(RecordMemo::Entry const& record) { return record.direct.jsonSave; }

  [[noreturn]] static void NoFunction(RecordMemo::Entry const& record) {
    throw std::runtime_error("No serialization function available: " + record.name);
  }

  // A save function of someone else's: only the archive can run it.
  template <class Walk>
  static bool Other(Object const&, RecordMemo::Entry const&, Walk&) {
    return false;
  }

  void Null() {
    writer.StartObject();
    Name("typename");
    writer.String("", 0);
    writer.EndObject();
  }

  void Open(RecordMemo::Entry const& record) {
    writer.StartObject();
    Name("typename");
    writer.Literal(record.direct.quotedName, rapidjson::kStringType);
  }

  void Close() { writer.EndObject(); }

  // Each C++ type goes to the writer call that cereal's archive picks for it.
  template <class T>
  void Scalar(T const& value) {
    Name("value");
    Number(value);
  }

  void OpenArray(ArrayKind const& array) {
    Name("required");
    Schema(array.GetRequired());
    Name("objects");
    writer.StartArray();
  }

  template <class WriteChild>
  static bool Element(std::size_t, WriteChild const& writeChild) {
    return writeChild();
  }

  void CloseArray(ArrayKind const&) { writer.EndArray(); }

  void OpenDictionary(DictionaryKind const&) {
    Name("properties");
    writer.StartArray();
  }

  template <class WriteChild>
  bool Entry(std::string const& key, WriteChild const& writeChild) {
    writer.StartObject();
    Name("key");
    Text(key);
    Name("value");
    if (!writeChild()) {
      return false;
    }
    writer.EndObject();
    return true;
  }

  void CloseDictionary(DictionaryKind const& dictionary) {
    writer.EndArray();
    Name("required");
    Schema(dictionary.GetRequired());
  }

  void Enumerator(EnumKind const& enumerator) {
    Name("type");
    writer.Uint(enumerator.GetEnumType().GetValue());
    Name("value");
    writer.Uint64(enumerator.GetRawValue());
  }

  template <class T>
  void Pointer(object::Pointer<Object, T> const& pointer) {
    Name("type");
    writer.Uint(pointer.GetPointeeType().GetValue());
  }

 private:
  void Number(bool value) { writer.Bool(value); }
  void Number(signed char value) { writer.Int(value); }
  void Number(short value) { writer.Int(value); }
  void Number(int value) { writer.Int(value); }
  void Number(long value) { writer.Int64(value); }
  void Number(unsigned char value) { writer.Int(value); }
  void Number(unsigned short value) { writer.Int(value); }
  void Number(unsigned value) { writer.Uint(value); }
  void Number(unsigned long value) { writer.Uint64(value); }
  void Number(float value) { writer.Double(value); }
  void Number(double value) { writer.Double(value); }
  void Number(std::string const& value) { Text(value); }

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
};

template <class Writer>
bool Write(Object const* value, Writer& writer) {
  writer.SetMaxDecimalPlaces(MaxDecimalPlaces);
  TypedJson<Writer> form(writer);
  return JsonWalk<TypedJson<Writer>>(form).Value(value);
}

}  // namespace

bool WriteJson(Object const* value, JsonLayout layout, std::string& text) {
  StringOutput out;
  bool const written =
      WithJsonWriter(layout, out, [value](auto& writer) { return Write(value, writer); });
  if (written) {
    text = out.Take();
  }
  return written;
}

}  // namespace ryx::object::detail
