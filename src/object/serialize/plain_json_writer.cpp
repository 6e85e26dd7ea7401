#include "object/serialize/detail/plain_json_writer.hpp"

#include <ryx/object/registry/info.hpp>
#include <ryx/object/serialize/plain_json.hpp>

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "object/serialize/detail/json_pointer.hpp"
#include "object/serialize/detail/json_walk.hpp"
#include "object/serialize/detail/json_writers.hpp"
#include "object/serialize/detail/utf8.hpp"

namespace ryx::object::detail {

namespace {

using rapidjson::SizeType;

// What plain JSON cannot hold, on its way up to the root, where it becomes a
// PlainJsonError. Each level it passes through puts its segment in front of
// the path.
struct Refusal {
  std::string reason;
  std::string path;
};

template <class Writer>
class PlainJson {
 public:
  explicit PlainJson(Writer& writer) : writer(writer) {}

  static LibraryKind KindOf(RecordMemo::Entry const& record) { return record.direct.own; }

  // Never called: every record has a kind of its own.
  [[noreturn]] static void NoFunction(RecordMemo::Entry const& record) {
    throw std::logic_error("No plain JSON kind for " + record.name);
  }

  // A type of the user's own writes the value its plain form gives for it.
  template <class Walk>
  static bool Other(Object const& value, RecordMemo::Entry const& record, Walk& walk) {
    PlainFunctions const& plain = record.info->GetPlainFunctions();
    if (!plain) {
      throw Refusal{record.name + " has no plain JSON form (no PlainFunctions were registered)",
                    {}};
    }
    std::shared_ptr<Object const> const replacement = plain.save(value);
    if (replacement == nullptr) {
      throw Refusal{"the plain form of " + record.name + " is a null value", {}};
    }
    return walk.Value(replacement.get());
  }

  void Null() { writer.Null(); }
  static void Open(RecordMemo::Entry const&) {}
  static void Close() {}

  void Scalar(bool value) { writer.Bool(value); }
  void Scalar(signed char value) { writer.Int(value); }
  void Scalar(short value) { writer.Int(value); }
  void Scalar(int value) { writer.Int(value); }
  void Scalar(long value) { writer.Int64(value); }
  void Scalar(unsigned char value) { writer.Uint(value); }
  void Scalar(unsigned short value) { writer.Uint(value); }
  void Scalar(unsigned value) { writer.Uint(value); }
  void Scalar(unsigned long value) { writer.Uint64(value); }
  void Scalar(float value) { Real(value); }
  void Scalar(double value) { Real(value); }
  void Scalar(std::string const& value) {
    Check(value, "the string");
    writer.String(value.data(), static_cast<SizeType>(value.size()));
  }

  void OpenArray(ArrayKind const&) { writer.StartArray(); }
  void CloseArray(ArrayKind const&) { writer.EndArray(); }

  template <class WriteChild>
  static bool Element(std::size_t index, WriteChild const& writeChild) {
    try {
      return writeChild();
    } catch (Refusal& refusal) {
      refusal.path.insert(0, PointerSegment(index));
      throw;
    }
  }

  void OpenDictionary(DictionaryKind const&) { writer.StartObject(); }
  void CloseDictionary(DictionaryKind const&) { writer.EndObject(); }

  template <class WriteChild>
  bool Entry(std::string const& key, WriteChild const& writeChild) {
    Check(key, "the member name");
    writer.Key(key.data(), static_cast<SizeType>(key.size()));
    try {
      return writeChild();
    } catch (Refusal& refusal) {
      refusal.path.insert(0, PointerSegment(key));
      throw;
    }
  }

  void Enumerator(EnumKind const& enumerator) { writer.Uint64(enumerator.GetRawValue()); }

  template <class T>
  [[noreturn]] static void Pointer(object::Pointer<Object, T> const&) {
    throw Refusal{std::string(type::Name<object::Pointer<Object, T>>::Value) +
                      " has no plain JSON form: what it points to is not a value",
                  {}};
  }

 private:
  // The shortest text that reads back as the same value, with ".0" where it
  // would read as an integer, so that it reads back as a number of its kind.
  template <class T>
  void Real(T value) {
    if (std::isnan(value)) {
      throw Refusal{"NaN has no plain JSON form", {}};
    }
    if (std::isinf(value)) {
      throw Refusal{std::string(value > 0 ? "infinity" : "-infinity") + " has no plain JSON form",
                    {}};
    }
    char text[40];
    char* end = std::to_chars(text, text + 32, value).ptr;
    std::size_t const length = static_cast<std::size_t>(end - text);
    if (std::memchr(text, '.', length) == nullptr && std::memchr(text, 'e', length) == nullptr) {
      *end++ = '.';
      *end++ = '0';
    }
    writer.RawValue(text, static_cast<std::size_t>(end - text), rapidjson::kNumberType);
  }

  static void Check(std::string const& text, char const* what) {
    if (text.size() > std::numeric_limits<SizeType>::max()) {
      throw Refusal{std::string(what) + " is too long for plain JSON: 4 GiB or more", {}};
    }
    std::size_t const invalid = FindInvalidUtf8(text);
    if (invalid != std::string_view::npos) {
      throw Refusal{std::string(what) + " is not valid UTF-8: " + DescribeInvalidUtf8(text, invalid),
                    {}};
    }
  }

  Writer& writer;
};

template <class Writer>
void Write(Object const* value, Writer& writer) {
  PlainJson<Writer> form(writer);
  try {
    if (!JsonWalk<PlainJson<Writer>>(form).Value(value)) {
      throw std::logic_error("a value of the library's own kinds was not written");
    }
  } catch (Refusal& refusal) {
    Location location;
    location.path = std::move(refusal.path);
    std::string what = location.path.empty() ? refusal.reason
                                             : "at " + location.path + ": " + refusal.reason;
    throw PlainJsonError(what, std::move(refusal.reason), std::move(location));
  }
}

}  // namespace

std::string WritePlainJson(Object const* value, JsonLayout layout) {
  StringOutput out;
  JsonStackAllocator allocator;
  if (layout == JsonLayout::Indented) {
    IndentedJsonWriter writer(out, &allocator);
    writer.SetIndent(JsonIndentChar, JsonIndentLength);
    Write(value, writer);
  } else {
    CompactJsonWriter writer(out, &allocator);
    Write(value, writer);
  }
  return out.Take();
}

}  // namespace ryx::object::detail
