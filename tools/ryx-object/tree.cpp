#include "tree.hpp"

#include "quote.hpp"

#include <ryx/object.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace ryx::object::tool {

namespace {

// A type id by its registered name; `null` for the null id, hex digits for
// an id without a name.
std::string TypeText(hash::MurmurThree32 id, char const* null) {
  if (id == hash::MurmurThree32()) {
    return null;
  }
  if (char const* const name = Object::TypeName(id)) {
    return name;
  }
  char hex[16];
  std::snprintf(hex, sizeof hex, "0x%08x", static_cast<unsigned>(id.GetValue()));
  return hex;
}

template <class T>
void AppendNumber(std::string& out, T value) {
  if constexpr (std::is_same_v<T, bool>) {
    out += value ? "true" : "false";
  } else {
    // The shortest text that reads back as the same value; 8-bit integers as
    // numbers, not characters.
    char digits[64];
    auto const end = std::to_chars(digits, digits + sizeof digits,
                                   std::conditional_t<(sizeof(T) == 1), int, T>(value))
                         .ptr;
    out.append(digits, end);
  }
}

// Appends " <value>" when `value` is a T.
template <class T>
bool AppendIf(std::string& out, Object const& value) {
  if (!value.Is<Primitive<T, Object>>()) {
    return false;
  }
  out += ' ';
  if constexpr (std::is_same_v<T, std::string>) {
    AppendQuoted(out, value.As<String>().Get());
  } else {
    AppendNumber(out, value.As<Primitive<T, Object>>().Get());
  }
  return true;
}

// The plain form of a value of a type registered with one (a record), or
// null.
std::shared_ptr<Object const> PlainFormOf(Object const& value) {
  PlainFunctions plain;
  {
    auto const map = registry::Get().GetMap();
    auto const found = map->find(value.GetType());
    if (found == map->end()) {
      return nullptr;
    }
    plain = found->second.GetPlainFunctions();
  }
  return plain ? plain.save(value) : nullptr;
}

class Printer {
 public:
  std::string Take() { return std::move(out); }

  void Value(Object const* value, int depth) {
    if (value == nullptr) {
      out += "null\n";
      return;
    }
    out += TypeText(value->GetType(), "null");
    if (value->Is<Array<Object>>()) {
      Items(value->As<Array<Object>>(), depth);
    } else if (value->Is<Dictionary<Object>>()) {
      Entries(value->As<Dictionary<Object>>(), depth);
    } else if (value->Is<Enum<Object>>()) {
      auto const& enumerator = value->As<Enum<Object>>();
      out += ' ';
      AppendNumber(out, enumerator.GetRawValue());
      out += " of " + TypeText(enumerator.GetEnumType(), "no enumeration");
    } else if (value->Is<Pointer<Object, void>>()) {
      out += " to " + TypeText(value->As<Pointer<Object, void>>().GetPointeeType(), "any type");
    } else if (value->Is<Pointer<Object, void const>>()) {
      out +=
          " to " + TypeText(value->As<Pointer<Object, void const>>().GetPointeeType(), "any type");
    } else if (std::shared_ptr<Object const> const plain = PlainFormOf(*value);
               plain && plain->Is<Dictionary<Object>>()) {
      // A type of its own shows its members as its plain form holds them.
      Entries(plain->As<Dictionary<Object>>(), depth);
    } else {
      AppendIf<bool>(out, *value) || AppendIf<signed char>(out, *value) ||
          AppendIf<short>(out, *value) || AppendIf<int>(out, *value) ||
          AppendIf<long>(out, *value) || AppendIf<unsigned char>(out, *value) ||
          AppendIf<unsigned short>(out, *value) || AppendIf<unsigned int>(out, *value) ||
          AppendIf<unsigned long>(out, *value) || AppendIf<float>(out, *value) ||
          AppendIf<double>(out, *value) || AppendIf<std::string>(out, *value);
    }
    out += '\n';
  }

 private:
  void Indent(int depth) { out.append(2 * static_cast<std::size_t>(depth), ' '); }

  void Schema(Required const& schema) {
    if (schema) {
      out += " required " + FormatRequired(schema);
    }
  }

  void Items(Array<Object> const& array, int depth) {
    Schema(array.GetRequired());
    if (array.Empty()) {
      out += " []";
      return;
    }
    out += " [\n";
    for (std::size_t i = 0; i < array.Size(); ++i) {
      Indent(depth + 1);
      out += '[' + std::to_string(i) + "] ";
      Value(array.GetObjects()[i].get(), depth + 1);
    }
    Indent(depth);
    out += ']';
  }

  void Entries(Dictionary<Object> const& dictionary, int depth) {
    Schema(dictionary.GetRequired());
    if (dictionary.Empty()) {
      out += " {}";
      return;
    }
    out += " {\n";
    std::vector<Dictionary<Object>::Properties::const_pointer> entries;
    for (auto const& entry : dictionary.GetProperties()) {
      entries.push_back(&entry);
    }
    std::sort(entries.begin(), entries.end(),
              [](auto const* a, auto const* b) { return a->first < b->first; });
    for (auto const* entry : entries) {
      Indent(depth + 1);
      AppendQuoted(out, entry->first);
      out += ": ";
      Value(entry->second.get(), depth + 1);
    }
    Indent(depth);
    out += '}';
  }

  std::string out;
};

}  // namespace

std::string Tree(Object const* value) {
  Printer printer;
  printer.Value(value, 0);
  return printer.Take();
}

}  // namespace ryx::object::tool
