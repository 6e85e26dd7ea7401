#include "object/serialize/detail/binary_reader.hpp"

#include <ryx/object/option.hpp>
#include <ryx/object/required.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "object/detail/json_pointer.hpp"
#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/binary_fields.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/loaded.hpp"
#include "object/serialize/detail/native_order.hpp"
#include "object/serialize/detail/record_memo.hpp"

namespace ryx::object::detail {

namespace {

// Every read returns false when the bytes run out or are not what the
// archive would accept; nothing is then changed.
class BinaryReader {
 public:
  BinaryReader(char const* begin, char const* at, char const* end, Location& failure)
      : begin(begin), at(at), end(end), failure(failure) {}

  [[nodiscard]] bool Value(std::shared_ptr<Object>& object) {
    NestingGuard const level(Nesting::value);
    std::uint32_t id = 0;
    if (!Number(id)) {
      return false;
    }
    RecordMemo::Entry const* const record = records.Find(hash::MurmurThree32(id));
    registry::Info const* const info = record != nullptr ? record->info : nullptr;
    if (info == nullptr || !info->GetConstructFunction()) {
      // Only the null id loads as nothing; the archive refuses the others.
      if (id != 0) {
        return Fail(at - sizeof id);
      }
      object = nullptr;
      return true;
    }
    LibraryKind const kind = record->direct.binaryLoad;
    if (kind == LibraryKind::none || kind == LibraryKind::other) {
      return false;
    }
    // A dictionary is made after its entries, as a caller building one would
    // make it: its blocks then follow its children's, and glibc releases
    // such a value markedly faster (about a third, measured on the
    // benchmark's records) than one made before its entries.
    std::size_t const mark = entries.size();
    Required required;
    if (kind == LibraryKind::Dictionary && !Entries(required)) {
      return false;
    }
    std::shared_ptr<Object> made = info->GetConstructFunction()();
    if (made == nullptr) {
      return false;
    }
    made->GetOptions().Set(Option::deserializing);
    if (kind == LibraryKind::Dictionary) {
      Fill(static_cast<DictionaryKind&>(*made), mark, required);
    } else if (!Fill(*made, kind)) {
      return false;
    }
    made->GetOptions().Clear(Option::deserializing);
    object = std::move(made);
    return true;
  }

 private:
  [[nodiscard]] bool Fill(Object& made, LibraryKind kind) {
    switch (kind) {
      case LibraryKind::Bool:
        return Primitive<Bool>(made);
      case LibraryKind::Int8:
        return Primitive<Int8>(made);
      case LibraryKind::Int16:
        return Primitive<Int16>(made);
      case LibraryKind::Int32:
        return Primitive<Int32>(made);
      case LibraryKind::Int64:
        return Primitive<Int64>(made);
      case LibraryKind::UInt8:
        return Primitive<UInt8>(made);
      case LibraryKind::UInt16:
        return Primitive<UInt16>(made);
      case LibraryKind::UInt32:
        return Primitive<UInt32>(made);
      case LibraryKind::UInt64:
        return Primitive<UInt64>(made);
      case LibraryKind::Float:
        return Primitive<Float>(made);
      case LibraryKind::Double:
        return Primitive<Double>(made);
      case LibraryKind::String:
        return Primitive<String>(made);
      case LibraryKind::Array:
        return Fill(static_cast<ArrayKind&>(made));
      case LibraryKind::Enum:
        return Fill(static_cast<EnumKind&>(made));
      case LibraryKind::Pointer:
        return Fill(static_cast<PointerKind&>(made));
      case LibraryKind::ConstPointer:
        return Fill(static_cast<ConstPointerKind&>(made));
      default:
        return false;
    }
  }

  // The value is set only once it was read.
  template <class Kind>
  [[nodiscard]] bool Primitive(Object& made) {
    typename Kind::ValueType value{};
    if (!Field(value)) {
      return false;
    }
    static_cast<Kind&>(made).Set(std::move(value));
    return true;
  }

  [[nodiscard]] bool Fill(ArrayKind& array) {
    Required required;
    if (!Schema(required)) {
      return false;
    }
    ArrayKind::Objects objects;
    std::size_t index = 0;
    auto const element = [this, &index](std::shared_ptr<Object>& object) {
      std::string segment;
      AppendPointerIndex(segment, index++);
      return Child(object, segment);
    };
    if (!Items(objects, element)) {
      return false;
    }
    LoadedArray loaded{required, objects};
    array.Serialize(loaded);
    return true;
  }

  // The entries, kept on the reader's stack for the dictionary to come, then
  // the schema.
  [[nodiscard]] bool Entries(Required& required) {
    std::uint64_t count = 0;
    if (!Number(count)) {
      return false;
    }
    for (std::uint64_t index = 0; index != count; ++index) {
      // Locals: reading the value may grow the stack.
      std::string key;
      std::shared_ptr<Object> value;
      if (!Field(key)) {
        return false;
      }
      std::string segment;
      AppendPointerKey(segment, key);
      if (!Child(value, segment)) {
        return false;
      }
      entries.emplace_back(std::move(key), std::move(value));
    }
    return Schema(required);
  }

  // As the archive: room for a few entries ahead, then each inserted in
  // stream order, the first of repeated keys kept.
  void Fill(DictionaryKind& dictionary, std::size_t mark, Required& required) {
    auto const first = entries.begin() + static_cast<std::ptrdiff_t>(mark);
    std::uint64_t const count = static_cast<std::uint64_t>(entries.end() - first);
    DictionaryKind::Properties properties;
    properties.reserve(static_cast<std::size_t>(std::min(count, ReservedAhead)));
    for (auto entry = first; entry != entries.end(); ++entry) {
      properties.try_emplace(std::move(entry->first), std::move(entry->second));
    }
    entries.erase(first, entries.end());
    LoadedDictionary loaded{properties, required};
    dictionary.Serialize(loaded);
  }

  [[nodiscard]] bool Fill(EnumKind& enumerator) {
    LoadedEnum loaded{0, 0};
    if (!Number(loaded.type) || !Number(loaded.value)) {
      return false;
    }
    enumerator.Serialize(loaded);
    return true;
  }

  template <class T>
  [[nodiscard]] bool Fill(Pointer<Object, T>& pointer) {
    LoadedPointer loaded{0};
    if (!Number(loaded.type)) {
      return false;
    }
    pointer.Serialize(loaded);
    return true;
  }

  // As the archive: the child list copied in, unchecked.
  [[nodiscard]] bool Schema(Required& required) {
    NestingGuard const level(Nesting::schema);
    std::uint32_t type = 0;
    std::vector<Required> children;
    if (!Number(type) || !Items(children, [this](Required& child) { return Schema(child); })) {
      return false;
    }
    required = Required(hash::MurmurThree32(type), children.cbegin(), children.cend());
    return true;
  }

  // A count, then that many items, with room made ahead for a few only, as
  // the archive does.
  template <class Item, class Read>
  [[nodiscard]] bool Items(std::vector<Item>& items, Read read) {
    std::uint64_t count = 0;
    if (!Number(count)) {
      return false;
    }
    items.reserve(static_cast<std::size_t>(std::min(count, ReservedAhead)));
    for (std::uint64_t index = 0; index != count; ++index) {
      if (!read(items.emplace_back())) {
        return false;
      }
    }
    return true;
  }

  // A child value; a failure inside it puts `segment` in front of its path.
  [[nodiscard]] bool Child(std::shared_ptr<Object>& object, std::string const& segment) {
    char const* const start = at;
    try {
      if (Value(object)) {
        return true;
      }
    } catch (...) {
      if (!failure.hasOffset) {
        Fail(start);
      }
      failure.path.insert(0, segment);
      throw;
    }
    if (failure.hasOffset) {
      failure.path.insert(0, segment);
    }
    return false;
  }

  // Stops at a field the archive refuses too, recording where it starts.
  bool Fail(char const* field) noexcept {
    failure.hasOffset = true;
    failure.offset = static_cast<std::size_t>(field - begin);
    return false;
  }

  [[nodiscard]] bool Field(bool& value) {
    std::uint8_t byte = 0;
    if (!Number(byte)) {
      return false;
    }
    if (byte > 1) {
      return Fail(at - 1);
    }
    value = byte == 1;
    return true;
  }

  [[nodiscard]] bool Field(std::string& value) {
    std::uint64_t length = 0;
    if (!Number(length)) {
      return false;
    }
    if (length > static_cast<std::uint64_t>(end - at)) {
      return Fail(at);
    }
    value.assign(at, static_cast<std::size_t>(length));
    at += length;
    return true;
  }

  template <class T>
  [[nodiscard]] bool Field(T& value) {
    return Number(value);
  }

  template <class T>
  [[nodiscard]] bool Number(T& value) {
    static_assert(std::is_arithmetic_v<T> && !std::is_same_v<T, bool>);
    if (static_cast<std::size_t>(end - at) < sizeof(T)) {
      return Fail(at);
    }
    std::memcpy(&value, at, sizeof(T));
    at += sizeof(T);
    return true;
  }

  char const* const begin;  // the endianness byte, offset 0
  char const* at;
  char const* const end;
  Location& failure;
  // Entries read for the dictionaries being loaded, innermost last.
  std::vector<std::pair<std::string, std::shared_ptr<Object>>> entries;
  RecordMemo records;
};

}  // namespace

bool ReadBinary(std::string_view bytes, std::shared_ptr<Object>& value, Location& failure) {
  if (bytes.empty() || static_cast<std::uint8_t>(bytes.front()) != NativeOrderFlag) {
    return false;
  }
  BinaryReader reader(bytes.data(), bytes.data() + 1, bytes.data() + bytes.size(), failure);
  std::shared_ptr<Object> loaded;
  if (!reader.Value(loaded)) {
    return false;
  }
  value = std::move(loaded);
  return true;
}

}  // namespace ryx::object::detail
