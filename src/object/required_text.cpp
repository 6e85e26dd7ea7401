#include <ryx/object/required_text.hpp>

#include <ryx/object/object.hpp>

#include <cstdio>
#include <stdexcept>
#include <utility>
#include <vector>

#include "object/detail/nesting_guard.hpp"

namespace ryx::object {

namespace {

constexpr std::string_view LibraryPrefix = "ryx.object.";

// The library's own types, which the text may name without the prefix.
constexpr std::string_view LibraryTypes[] = {
    "Bool",   "Int8",  "Int16",  "Int32",  "Int64",      "UInt8", "UInt16",  "UInt32",
    "UInt64", "Float", "Double", "String", "Array", "Dictionary", "Enum",   "Pointer",
    "ConstPointer"};

bool IsLibraryType(std::string_view shortName) {
  for (std::string_view const name : LibraryTypes) {
    if (name == shortName) {
      return true;
    }
  }
  return false;
}

void Format(Required const& schema, std::string& text) {
  detail::NestingGuard const level(detail::Nesting::schema);
  hash::MurmurThree32 const type = schema.GetType();
  if (type == hash::MurmurThree32()) {
    text += "any";
  } else if (char const* const name = Object::TypeName(type)) {
    text += name;
  } else {
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%08x", static_cast<unsigned>(type.GetValue()));
    text += hex;
  }
  char separator = '<';
  for (Required const& child : schema.GetChildTypes()) {
    text += separator;
    Format(child, text);
    separator = ',';
  }
  if (separator == ',') {
    text += '>';
  }
}

bool IsNameStart(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; }
bool IsNameChar(char c) { return IsNameStart(c) || (c >= '0' && c <= '9'); }
bool IsHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

class Parser {
 public:
  explicit Parser(std::string_view text) : text(text) {}

  Required Whole() {
    Required schema = Schema();
    Blanks();
    if (at != text.size()) {
      Fail(at, "expected the end of the schema");
    }
    return schema;
  }

 private:
  Required Schema() {
    detail::NestingGuard const level(detail::Nesting::schema);
    Blanks();
    hash::MurmurThree32 const type = Type();
    Blanks();
    if (at == text.size() || text[at] != '<') {
      return Required(type);
    }
    std::vector<Required> children;
    do {
      ++at;
      Blanks();
      std::size_t const child = at;
      children.push_back(Schema());
      if (!children.back()) {
        Fail(child, "a child type cannot be 'any' alone, which would accept every value: "
                    "leave the child types out instead");
      }
      Blanks();
    } while (at != text.size() && text[at] == ',');
    if (at == text.size() || text[at] != '>') {
      Fail(at, "expected ',' or '>'");
    }
    ++at;
    return Required(type, std::move(children));
  }

  hash::MurmurThree32 Type() {
    std::size_t const start = at;
    if (text.substr(at, 2) == "0x" && at + 2 < text.size() && IsHexDigit(text[at + 2])) {
      return Hex();
    }
    if (at == text.size() || !IsNameStart(text[at])) {
      Fail(at, "expected a type: a name such as ryx.object.Int32, a type id such as "
               "0x1a2b3c4d, or any");
    }
    while (true) {
      while (at != text.size() && IsNameChar(text[at])) {
        ++at;
      }
      if (at + 1 < text.size() && text[at] == '.' && IsNameStart(text[at + 1])) {
        ++at;
        continue;
      }
      break;
    }
    std::string_view const name = text.substr(start, at - start);
    if (name == "any") {
      return hash::MurmurThree32();
    }
    std::string full(name);
    if (name.find('.') == std::string_view::npos) {
      if (!IsLibraryType(name)) {
        Fail(start, "'" + full + "' is no type of the library: give a registered type's full name");
      }
      full.insert(0, LibraryPrefix);
    } else if (name.substr(0, LibraryPrefix.size()) == LibraryPrefix &&
               !IsLibraryType(name.substr(LibraryPrefix.size()))) {
      Fail(start, "'" + full + "' is no type of the library");
    }
    hash::MurmurThree32 const type =
        hash::MurmurThree32::MakeData(boost::string_view(full.data(), full.size()));
    if (Object::TypeName(type) == nullptr) {
      Fail(start, "'" + full + "' is not a registered type");
    }
    return type;
  }

  hash::MurmurThree32 Hex() {
    std::size_t const start = at;
    at += 2;
    std::uint32_t value = 0;
    std::size_t digits = 0;
    for (; at != text.size() && IsHexDigit(text[at]); ++at, ++digits) {
      char const c = text[at];
      value = value * 16 + static_cast<std::uint32_t>(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
      if (digits == 8) {
        Fail(start, "a type id has at most 8 hexadecimal digits");
      }
    }
    if (value == 0) {
      Fail(start, "the type id 0 is the null type: write any");
    }
    return hash::MurmurThree32(value);
  }

  void Blanks() {
    while (at != text.size() && (text[at] == ' ' || text[at] == '\t')) {
      ++at;
    }
  }

  [[noreturn]] void Fail(std::size_t where, std::string const& expected) const {
    throw std::invalid_argument("Bad schema at character " + std::to_string(where + 1) + " of \"" +
                                std::string(text) + "\": " + expected);
  }

  std::string_view const text;
  std::size_t at = 0;
};

}  // namespace

std::string FormatRequired(Required const& schema) {
  std::string text;
  Format(schema, text);
  return text;
}

Required ParseRequired(std::string_view text) { return Parser(text).Whole(); }

}  // namespace ryx::object
