#include "object/serialize/detail/plain_json_writer.hpp"

#include <ryx/object/registry/info.hpp>
#include <ryx/object/serialize/plain_json.hpp>

#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "object/detail/json_pointer.hpp"
#include "object/serialize/detail/json_walk.hpp"
#include "object/serialize/detail/json_writers.hpp"
#include "object/serialize/detail/utf8.hpp"

namespace ryx::object::detail {

namespace {

// What plain JSON cannot hold, on its way up to the root, where it becomes a
// PlainJsonError. Each level it passes through puts its segment in front of
// the path.
struct Refusal {
  std::string reason;
  std::string path;
};

// Whether any of eight bytes is a control character, a quote, a backslash or
// the start of a multi-byte sequence (it may also say so of a byte after such
// a byte): the bytes a string cannot copy as they are.
bool NeedsCare(std::uint64_t word) noexcept {
  constexpr std::uint64_t Ones = 0x0101010101010101u;
  constexpr std::uint64_t High = 0x8080808080808080u;
  auto const hasZero = [](std::uint64_t x) { return (x - Ones) & ~x & High; };
  std::uint64_t const control = (word - Ones * 0x20) & ~word & High;
  return ((control | hasZero(word ^ (Ones * '"')) | hasZero(word ^ (Ones * '\\')) | word) &
          High) != 0;
}

// `text` as a JSON string: quote and backslash escaped, control characters
// as rapidjson's writer escapes them, everything else as it is. Text that is
// not UTF-8 is refused.
void WriteString(StringOutput& out, std::string_view text, char const* what) {
  static char const hex[] = "0123456789ABCDEF";
  char const* const begin = text.data();
  char const* const end = begin + text.size();
  char const* run = begin;  // not yet copied
  char const* at = begin;
  out.Put('"');
  while (at != end) {
    if (end - at >= 8) {
      std::uint64_t word;
      std::memcpy(&word, at, sizeof word);
      if (!NeedsCare(word)) {
        at += 8;
        continue;
      }
    }
    auto const byte = static_cast<unsigned char>(*at);
    if (byte >= 0x80) {
      std::size_t const length = Utf8SequenceLength(at, end);
      if (length == 0) {
        auto const offset = static_cast<std::size_t>(at - begin);
        throw Refusal{std::string(what) + " is not valid UTF-8: " + DescribeInvalidUtf8(text, offset),
                      {}};
      }
      at += length;
      continue;
    }
    if (byte >= 0x20 && byte != '"' && byte != '\\') {
      ++at;
      continue;
    }
    out.Write(run, static_cast<std::size_t>(at - run));
    char escape[6] = {'\\', 0, '0', '0', 0, 0};
    std::size_t length = 2;
    switch (byte) {
      case '"':
      case '\\':
        escape[1] = static_cast<char>(byte);
        break;
      case '\b':
        escape[1] = 'b';
        break;
      case '\t':
        escape[1] = 't';
        break;
      case '\n':
        escape[1] = 'n';
        break;
      case '\f':
        escape[1] = 'f';
        break;
      case '\r':
        escape[1] = 'r';
        break;
      default:
        escape[1] = 'u';
        escape[4] = hex[byte >> 4];
        escape[5] = hex[byte & 0xF];
        length = 6;
    }
    out.Write(escape, length);
    run = ++at;
  }
  out.Write(run, static_cast<std::size_t>(end - run));
  out.Put('"');
}

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
  void Scalar(std::string const& value) { Text(value, "the string"); }

  void OpenArray(ArrayKind const&) { writer.StartArray(); }
  void CloseArray(ArrayKind const&) { writer.EndArray(); }

  template <class WriteChild>
  static bool Element(std::size_t index, WriteChild const& writeChild) {
    try {
      return writeChild();
    } catch (Refusal& refusal) {
      std::string segment;
      AppendPointerIndex(segment, index);
      refusal.path.insert(0, segment);
      throw;
    }
  }

  void OpenDictionary(DictionaryKind const&) { writer.StartObject(); }
  void CloseDictionary(DictionaryKind const&) { writer.EndObject(); }

  template <class WriteChild>
  bool Entry(std::string const& key, WriteChild const& writeChild) {
    Text(key, "the member name");
    try {
      return writeChild();
    } catch (Refusal& refusal) {
      std::string segment;
      AppendPointerKey(segment, key);
      refusal.path.insert(0, segment);
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

  void Text(std::string const& text, char const* what) {
    writer.Raw(rapidjson::kStringType,
               [&](StringOutput& out) { WriteString(out, text, what); });
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
  WithJsonWriter(layout, out, [value](auto& writer) { Write(value, writer); });
  return out.Take();
}

}  // namespace ryx::object::detail
