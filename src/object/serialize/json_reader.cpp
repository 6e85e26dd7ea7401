#include "object/serialize/detail/json_reader.hpp"

#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/option.hpp>
#include <ryx/object/required.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "object/detail/json_pointer.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/json_allocator.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/loaded.hpp"
#include "object/serialize/detail/locate.hpp"
#include "object/serialize/detail/pending_children.hpp"
#include "object/serialize/detail/record_memo.hpp"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace ryx::object::detail {

namespace {

using rapidjson::SizeType;

// The archive reads strings as C strings: they end at the first NUL.
std::size_t UpToNul(char const* text, SizeType length) {
  void const* const nul = std::memchr(text, 0, length);
  return nul != nullptr ? static_cast<std::size_t>(static_cast<char const*>(nul) - text) : length;
}

template <std::size_t Size>
bool Is(char const* text, SizeType length, char const (&name)[Size]) {
  return length == Size - 1 && std::memcmp(text, name, Size - 1) == 0;
}

// The SAX handler. Every event either advances the node on top of the stack
// to its next step or, for anything the writer would not have written there,
// returns false, which ends the parse: the archive then reads the document.
class Builder {
 public:
  Builder(std::size_t limit, std::string_view text, rapidjson::MemoryStream const& in,
          Location& failure)
      : limit(limit), text(text), in(in), failure(failure) {}

  bool Done() const noexcept { return done; }
  std::shared_ptr<Object>& Result() noexcept { return root; }

  bool StartObject() {
    if (frames.empty()) {
      return !done && PushValue();
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        ++skipped;
        return true;
      case Step::Objects:
        return PushValue();
      case Step::Properties:
        frames.emplace_back(Step::EntryKeyName);
        return true;
      case Step::EntryValue:
        top.step = Step::EntryEnd;
        return PushValue();
      case Step::Required:
        top.step = top.kind == LibraryKind::Array ? Step::ObjectsKey : Step::End;
        return PushSchema();
      case Step::ChildTypes:
        return PushSchema();
      default:
        return Refuse(in.Tell(), true);
    }
  }

  bool EndObject(SizeType) {
    if (frames.empty()) {
      return false;
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        if (skipped != 0) {
          --skipped;
          return true;
        }
        return FinishValue();
      case Step::End:
        return FinishValue();
      case Step::EntryEnd:
        frames.pop_back();
        return true;
      case Step::SchemaEnd:
        FinishSchema();
        return true;
      default:
        return Refuse(in.Tell(), false);  // the brace, not taken yet
    }
  }

  bool StartArray() {
    if (frames.empty()) {
      return false;
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        ++skipped;
        return true;
      case Step::ObjectsStart:
        top.mark = children.ElementMark();
        top.step = Step::Objects;
        return true;
      case Step::PropertiesStart:
        top.mark = children.EntryMark();
        top.step = Step::Properties;
        return true;
      case Step::ChildTypesStart:
        top.step = Step::ChildTypes;
        return true;
      default:
        return Refuse(in.Tell(), true);
    }
  }

  bool EndArray(SizeType) {
    if (frames.empty()) {
      return false;
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        --skipped;
        return true;
      case Step::Objects:
        top.step = Step::End;
        return true;
      case Step::Properties:
        top.step = Step::RequiredKey;
        return true;
      case Step::ChildTypes:
        top.step = Step::SchemaEnd;
        return true;
      default:
        return false;
    }
  }

  bool Key(char const* text, SizeType length, bool) {
    if (frames.empty()) {
      return false;
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        return true;
      case Step::TypenameKey:
        // As Load: the first member is the type record, whatever its name.
        top.step = Step::TypenameValue;
        return true;
      case Step::ValueKey:
        return Expect(top, text, length, "value",
                      top.kind == LibraryKind::Enum ? Step::EnumValue : Step::Value);
      case Step::TypeKey:
        return Expect(top, text, length, "type", Step::Type);
      case Step::RequiredKey:
        return Expect(top, text, length, "required", Step::Required);
      case Step::ObjectsKey:
        return Expect(top, text, length, "objects", Step::ObjectsStart);
      case Step::PropertiesKey:
        return Expect(top, text, length, "properties", Step::PropertiesStart);
      case Step::EntryKeyName:
        return Expect(top, text, length, "key", Step::EntryKey);
      case Step::EntryValueName:
        return Expect(top, text, length, "value", Step::EntryValue);
      case Step::SchemaTypeName:
        return Expect(top, text, length, "type", Step::SchemaType);
      case Step::ChildTypesName:
        return Expect(top, text, length, "child_types", Step::ChildTypesStart);
      default:
        return false;
    }
  }

  bool String(char const* text, SizeType length, bool) {
    if (frames.empty()) {
      return false;
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        return true;
      case Step::TypenameValue:
        return TypeRecord(top, std::string_view(text, UpToNul(text, length)));
      case Step::Value:
        if (top.kind != LibraryKind::String) {
          return Refuse(TokenStart(), true);
        }
        static_cast<object::String&>(*top.made).Set(std::string(text, UpToNul(text, length)));
        top.step = Step::End;
        return true;
      case Step::EntryKey:
        top.key = children.EntryMark();
        children.AddKey(std::string(text, UpToNul(text, length)));
        top.step = Step::EntryValueName;
        return true;
      default:
        return Refuse(TokenStart(), true);
    }
  }

  // Each number event makes the value rapidjson's DOM would hold for it, so
  // that the checks below are exactly those of the archive's reads.
  bool Null() { return Scalar(rapidjson::Value()); }
  bool Bool(bool b) { return Scalar(rapidjson::Value(b)); }
  bool Int(int i) { return Scalar(rapidjson::Value(i)); }
  bool Uint(unsigned u) { return Scalar(rapidjson::Value(u)); }
  bool Int64(std::int64_t i) { return Scalar(rapidjson::Value(i)); }
  bool Uint64(std::uint64_t u) { return Scalar(rapidjson::Value(u)); }
  bool Double(double d) { return Scalar(rapidjson::Value(d)); }
  bool RawNumber(char const*, SizeType, bool) { return false; }

 private:
  // What the node on top of the stack takes next. A value node goes through
  // the steps of its kind from TypenameKey to End (or Skip, for a type it
  // cannot load); a dictionary entry from EntryKeyName to EntryEnd; a schema
  // from SchemaTypeName to SchemaEnd.
  enum class Step : std::uint8_t {
    TypenameKey,
    TypenameValue,
    Skip,
    ValueKey,
    Value,
    EnumValue,
    TypeKey,
    Type,
    RequiredKey,
    Required,
    ObjectsKey,
    ObjectsStart,
    Objects,
    PropertiesKey,
    PropertiesStart,
    Properties,
    End,
    EntryKeyName,
    EntryKey,
    EntryValueName,
    EntryValue,
    EntryEnd,
    SchemaTypeName,
    SchemaType,
    ChildTypesName,
    ChildTypesStart,
    ChildTypes,
    SchemaEnd,
  };

  struct Frame {
    explicit Frame(Step step) noexcept : step(step) {}

    Step step;
    LibraryKind kind = LibraryKind::none;
    std::uint32_t number = 0;  // a schema's, enumerator's or pointer's type
    std::size_t mark = 0;      // where its children start on their stack
    std::size_t count = 0;     // an array's elements so far
    std::size_t key = NoKey;   // an entry's key, in `children`
    std::shared_ptr<Object> made;
    registry::Info const* info = nullptr;  // a dictionary's, made last
  };

  static constexpr std::size_t NoKey = static_cast<std::size_t>(-1);

  // Stops at a value the archive refuses too (of the wrong JSON kind, out of
  // range, too deep) or at a node that ends before its members: the archive
  // fails there as well, and `failure` says where. Other stops (members in
  // another order, a type of someone else's) say nothing: the archive may
  // read on.
  bool Refuse(std::size_t offset, bool child) {
    if (!failure.hasOffset) {
      LocateInText(text, offset, failure);
      failure.path = Path(child);
    }
    return false;
  }

  // The path of the node on top (with `child`, of the value it is reading):
  // the index of each array's element and the key of each entry on the way.
  std::string Path(bool child) const {
    std::string path;
    std::size_t const levels = child || frames.empty() ? frames.size() : frames.size() - 1;
    for (std::size_t level = 0; level != levels; ++level) {
      Frame const& frame = frames[level];
      if (frame.step == Step::Objects) {
        AppendPointerIndex(path, frame.count);
      } else if (frame.key != NoKey) {
        AppendPointerKey(path, children.KeyAt(frame.key));
      }
    }
    return path;
  }

  // Where the token just read starts: a string at its opening quote, a
  // number or a literal at its first character.
  std::size_t TokenStart() const {
    std::size_t at = in.Tell();
    if (at != 0 && text[at - 1] == '"') {
      return StringStart(text, at);
    }
    while (at != 0 && std::strchr("0123456789+-.eEtrufalsn", text[at - 1]) != nullptr &&
           text[at - 1] != '\0') {
      --at;
    }
    return at;
  }

  template <std::size_t Size>
  static bool Expect(Frame& top, char const* text, SizeType length, char const (&name)[Size],
                     Step next) {
    if (!Is(text, length, name)) {
      return false;
    }
    top.step = next;
    return true;
  }

  // A value node one level deeper; a value past the limit is the archive's
  // to refuse.
  bool PushValue() {
    if (values == limit) {
      return Refuse(in.Tell(), true);
    }
    ++values;
    frames.emplace_back(Step::TypenameKey);
    return true;
  }

  bool PushSchema() {
    if (schemaLevels == limit) {
      return Refuse(in.Tell(), true);
    }
    ++schemaLevels;
    frames.emplace_back(Step::SchemaTypeName).mark = schemas.size();
    return true;
  }

  // As Load: a name that no type registered, a type without a construct
  // function, a construct function giving null or a type without a JSON load
  // function make the value null, and the rest of its node goes unread.
  bool TypeRecord(Frame& top, std::string_view name) {
    RecordMemo::Entry const* const record = records.FindNamed(name);
    registry::Info const* const info = record != nullptr ? record->info : nullptr;
    if (info == nullptr || !info->GetConstructFunction()) {
      top.step = Step::Skip;
      return true;
    }
    LibraryKind const kind = record->direct.jsonLoad;
    if (kind == LibraryKind::other) {
      return false;
    }
    if (kind == LibraryKind::Dictionary) {
      // Made after its entries, as the binary reader makes it (see there).
      top.info = info;
      top.kind = kind;
      top.step = Step::PropertiesKey;
      return true;
    }
    std::shared_ptr<Object> made = info->GetConstructFunction()();
    if (made == nullptr || kind == LibraryKind::none) {
      top.step = Step::Skip;
      return true;
    }
    made->GetOptions().Set(Option::deserializing);
    top.made = std::move(made);
    top.kind = kind;
    switch (kind) {
      case LibraryKind::Array:
        top.step = Step::RequiredKey;
        break;
      case LibraryKind::Enum:
      case LibraryKind::Pointer:
      case LibraryKind::ConstPointer:
        top.step = Step::TypeKey;
        break;
      default:
        top.step = Step::ValueKey;
        break;
    }
    return true;
  }

  bool Scalar(rapidjson::Value const& value) {
    if (frames.empty()) {
      return false;
    }
    Frame& top = frames.back();
    switch (top.step) {
      case Step::Skip:
        return true;
      case Step::Value:
        if (!SetPrimitive(top, value)) {
          return Refuse(TokenStart(), true);
        }
        top.step = Step::End;
        return true;
      case Step::Type:
        if (!value.IsUint()) {
          return Refuse(TokenStart(), true);
        }
        top.number = value.GetUint();
        if (top.kind == LibraryKind::Enum) {
          top.step = Step::ValueKey;
        } else {
          LoadedPointer loaded{top.number};
          if (top.kind == LibraryKind::Pointer) {
            static_cast<PointerKind&>(*top.made).Serialize(loaded);
          } else {
            static_cast<ConstPointerKind&>(*top.made).Serialize(loaded);
          }
          top.step = Step::End;
        }
        return true;
      case Step::EnumValue: {
        if (!value.IsUint64()) {
          return Refuse(TokenStart(), true);
        }
        LoadedEnum loaded{top.number, value.GetUint64()};
        static_cast<EnumKind&>(*top.made).Serialize(loaded);
        top.step = Step::End;
        return true;
      }
      case Step::SchemaType:
        if (!value.IsUint()) {
          return Refuse(TokenStart(), true);
        }
        top.number = value.GetUint();
        top.step = Step::ChildTypesName;
        return true;
      default:
        return Refuse(TokenStart(), true);
    }
  }

  // The reads of the archive: GetInt for the narrower signed kinds, GetUint
  // for the narrower unsigned ones, each converted to the kind's width.
  static bool SetPrimitive(Frame const& top, rapidjson::Value const& value) {
    Object& made = *top.made;
    switch (top.kind) {
      case LibraryKind::Bool:
        return value.IsBool() && Set<object::Bool>(made, value.GetBool());
      case LibraryKind::Int8:
        return value.IsInt() && Set<object::Int8>(made, value.GetInt());
      case LibraryKind::Int16:
        return value.IsInt() && Set<object::Int16>(made, value.GetInt());
      case LibraryKind::Int32:
        return value.IsInt() && Set<object::Int32>(made, value.GetInt());
      case LibraryKind::Int64:
        return value.IsInt64() && Set<object::Int64>(made, value.GetInt64());
      case LibraryKind::UInt8:
        return value.IsUint() && Set<object::UInt8>(made, value.GetUint());
      case LibraryKind::UInt16:
        return value.IsUint() && Set<object::UInt16>(made, value.GetUint());
      case LibraryKind::UInt32:
        return value.IsUint() && Set<object::UInt32>(made, value.GetUint());
      case LibraryKind::UInt64:
        return value.IsUint64() && Set<object::UInt64>(made, value.GetUint64());
      case LibraryKind::Float:
        return value.IsNumber() && Set<object::Float>(made, value.GetDouble());
      case LibraryKind::Double:
        return value.IsNumber() && Set<object::Double>(made, value.GetDouble());
      default:
        return false;
    }
  }

  template <class Kind, class Read>
  static bool Set(Object& made, Read read) {
    using Value = typename Kind::ValueType;
    static_cast<Kind&>(made).Set(static_cast<Value>(read));
    return true;
  }

  // The node's value is complete: containers take what was read for them,
  // and the value goes to whatever holds it.
  bool FinishValue() {
    Frame& top = frames.back();
    std::shared_ptr<Object> value = std::move(top.made);
    if (top.info != nullptr && top.step == Step::End) {
      // A construct function giving null: the archive would not have read on.
      value = top.info->GetConstructFunction()();
      if (value != nullptr) {
        value->GetOptions().Set(Option::deserializing);
        FillDictionary(static_cast<DictionaryKind&>(*value), top.mark);
      } else {
        children.DropEntries(top.mark);
        schemas.pop_back();
      }
    } else if (value != nullptr && top.kind == LibraryKind::Array) {
      FillArray(static_cast<ArrayKind&>(*value), top.mark);
    }
    if (value != nullptr) {
      value->GetOptions().Clear(Option::deserializing);
    }
    frames.pop_back();
    --values;
    if (frames.empty()) {
      root = std::move(value);
      done = true;
    } else if (frames.back().step == Step::Objects) {
      children.AddElement(std::move(value));
      ++frames.back().count;
    } else {
      children.SetLastValue(std::move(value));
    }
    return true;
  }

  // As the archive's load: the list sized to the elements read, exactly.
  void FillArray(ArrayKind& array, std::size_t mark) {
    ArrayKind::Objects objects = children.TakeElements(mark);
    Required required = TakeSchema();
    LoadedArray loaded{required, objects};
    array.Serialize(loaded);
  }

  // As the archive's load: each entry inserted in document order.
  void FillDictionary(DictionaryKind& dictionary, std::size_t mark) {
    DictionaryKind::Properties properties = children.TakeEntries(mark);
    Required required = TakeSchema();
    LoadedDictionary loaded{properties, required};
    dictionary.Serialize(loaded);
  }

  Required TakeSchema() {
    Required required = std::move(schemas.back());
    schemas.pop_back();
    return required;
  }

  // As the archive's load: the child list copied in, unchecked.
  void FinishSchema() {
    Frame const& top = frames.back();
    auto const first = schemas.cbegin() + static_cast<std::ptrdiff_t>(top.mark);
    Required required(hash::MurmurThree32(top.number), first, schemas.cend());
    schemas.erase(first, schemas.cend());
    schemas.push_back(std::move(required));
    frames.pop_back();
    --schemaLevels;
  }

  std::size_t const limit;
  std::string_view const text;
  rapidjson::MemoryStream const& in;
  Location& failure;
  std::vector<Frame> frames;
  PendingChildren children;
  std::vector<Required> schemas;
  std::size_t values = 0;
  std::size_t schemaLevels = 0;
  std::size_t skipped = 0;  // levels open inside a node that goes unread
  std::shared_ptr<Object> root;
  bool done = false;
  RecordMemo records;
};

}  // namespace

bool ReadJson(std::string_view document, std::shared_ptr<Object>& value, Location& failure) {
  JsonStackAllocator allocator;
  rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JsonStackAllocator> reader(
      &allocator);
  rapidjson::MemoryStream in(document.data(), document.size());
  Builder builder(GetNestingLimit(), document, in, failure);
  try {
    if (!reader.Parse<rapidjson::kParseDefaultFlags>(in, builder)) {
      // Where the text stops being JSON: the archive's parse fails there too.
      if (reader.GetParseErrorCode() != rapidjson::kParseErrorTermination &&
          !failure.hasOffset) {
        LocateInText(document, reader.GetErrorOffset(), failure);
      }
      return false;
    }
    if (!builder.Done()) {
      return false;
    }
  } catch (cereal::archive::JsonParseError const&) {
    // A check of the parser itself: the archive's parse meets it too.
    return false;
  }
  value = std::move(builder.Result());
  return true;
}

}  // namespace ryx::object::detail
