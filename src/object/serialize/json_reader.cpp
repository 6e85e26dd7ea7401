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

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/json_allocator.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/loaded.hpp"
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
  explicit Builder(std::size_t limit) : limit(limit) {}

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
        return false;
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
        return false;
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
        return false;
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
        return Expect(top, text, length, "typename", Step::TypenameValue);
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
          return false;
        }
        static_cast<object::String&>(*top.made).Set(std::string(text, UpToNul(text, length)));
        top.step = Step::End;
        return true;
      case Step::EntryKey:
        children.AddKey(std::string(text, UpToNul(text, length)));
        top.step = Step::EntryValueName;
        return true;
      default:
        return false;
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
    std::shared_ptr<Object> made;
    registry::Info const* info = nullptr;  // a dictionary's, made last
  };

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
      return false;
    }
    ++values;
    frames.emplace_back(Step::TypenameKey);
    return true;
  }

  bool PushSchema() {
    if (schemaLevels == limit) {
      return false;
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
          return false;
        }
        top.step = Step::End;
        return true;
      case Step::Type:
        if (!value.IsUint()) {
          return false;
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
          return false;
        }
        LoadedEnum loaded{top.number, value.GetUint64()};
        static_cast<EnumKind&>(*top.made).Serialize(loaded);
        top.step = Step::End;
        return true;
      }
      case Step::SchemaType:
        if (!value.IsUint()) {
          return false;
        }
        top.number = value.GetUint();
        top.step = Step::ChildTypesName;
        return true;
      default:
        return false;
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

bool ReadJson(std::string_view document, std::shared_ptr<Object>& value) {
  Builder builder(GetNestingLimit());
  JsonStackAllocator allocator;
  rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JsonStackAllocator> reader(
      &allocator);
  rapidjson::MemoryStream in(document.data(), document.size());
  try {
    if (!reader.Parse<rapidjson::kParseDefaultFlags>(in, builder) || !builder.Done()) {
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
