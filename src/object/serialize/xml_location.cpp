#include "object/serialize/detail/xml_location.hpp"

#include <ryx/object/serialize/location.hpp>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/locate.hpp"

namespace ryx::object::detail {

namespace {

namespace rapidxml = cereal::rapidxml;

using Node = rapidxml::xml_node<char>;

// What cereal's XMLInputArchive parses with, so that a second parse fails
// where the archive's did and builds the same tree.
constexpr int ArchiveParseFlags = rapidxml::parse_trim_whitespace | rapidxml::parse_no_data_nodes |
                                  rapidxml::parse_declaration_node;

// The name cereal gives its root element.
constexpr char const* RootName = "cereal";

// The path the failure being handled carries ("" when none), or nothing when
// it is not worth placing: std::bad_alloc, which a second parse would likely
// meet again, and exceptions RethrowLocated passes on as they are.
std::optional<std::string> FailedPath() {
  try {
    throw;
  } catch (std::bad_alloc const&) {
    return std::nullopt;
  } catch (std::exception const& error) {
    Location const* const location = FindLocation(error);
    return location != nullptr ? location->path : std::string();
  } catch (...) {
    return std::nullopt;
  }
}

// The reference tokens of a JSON Pointer, "~1" and "~0" decoded.
std::vector<std::string> SplitPointer(std::string const& pointer) {
  std::vector<std::string> tokens;
  for (std::size_t at = 0; at < pointer.size();) {
    // Every token starts with '/'.
    std::string token;
    for (++at; at < pointer.size() && pointer[at] != '/'; ++at) {
      if (pointer[at] == '~' && at + 1 < pointer.size() &&
          (pointer[at + 1] == '0' || pointer[at + 1] == '1')) {
        token += pointer[++at] == '1' ? '/' : '~';
      } else {
        token += pointer[at];
      }
    }
    tokens.push_back(std::move(token));
  }
  return tokens;
}

std::optional<std::size_t> ParseIndex(std::string const& token) {
  if (token.empty() || token.size() > 19) {
    return std::nullopt;
  }
  std::size_t index = 0;
  for (char const c : token) {
    if (c < '0' || c > '9') {
      return std::nullopt;
    }
    index = index * 10 + static_cast<std::size_t>(c - '0');
  }
  return index;
}

bool IsElement(Node const* node) {
  return node != nullptr && node->type() == rapidxml::node_element;
}

// The first child element of `parent` named `name` (none is unnamed), as the
// archive looks a named field up.
Node* Child(Node const* parent, std::string const& name) {
  for (Node* child = parent->first_node(); child != nullptr; child = child->next_sibling()) {
    if (IsElement(child) && name == std::string_view(child->name(), child->name_size())) {
      return child;
    }
  }
  return nullptr;
}

// The child at `index` among all of `parent`'s children, if an element: the
// archive reads an array's items in document order, whatever their names.
Node* NthChild(Node const* parent, std::size_t index) {
  Node* child = parent->first_node();
  for (; child != nullptr && index != 0; --index) {
    child = child->next_sibling();
  }
  return IsElement(child) ? child : nullptr;
}

// The dictionary entry under `key`: the element holding its value, or the
// entry itself when it has none. The archive reads a key as the text of the
// entry's "key" up to any NUL, as here. Of entries under one key (a document
// the library never writes) the first is taken.
Node* EntryValue(Node const* properties, std::string const& key) {
  for (Node* entry = properties->first_node(); entry != nullptr; entry = entry->next_sibling()) {
    Node const* const keyNode = IsElement(entry) ? Child(entry, "key") : nullptr;
    if (keyNode != nullptr && key == keyNode->value()) {
      Node* const value = Child(entry, "value");
      return value != nullptr ? value : entry;
    }
  }
  return nullptr;
}

// The element of the value at `token` below the value held by `element`, the
// deepest element on the way there when the document stops short, or null
// when it holds nothing of it. An array holds its items in "objects", a
// dictionary its entries in "properties"; a record holds a child member as an
// element named after the member, which the path names by that name.
Node* Step(Node const* element, std::string const& token) {
  if (std::optional<std::size_t> const index = ParseIndex(token)) {
    if (Node* const objects = Child(element, "objects")) {
      Node* const item = NthChild(objects, *index);
      return item != nullptr ? item : objects;
    }
  }
  if (Node const* const properties = Child(element, "properties")) {
    if (Node* const value = EntryValue(properties, token)) {
      return value;
    }
  }
  return Child(element, token);
}

Node* FirstElement(Node const* parent) {
  for (Node* child = parent->first_node(); child != nullptr; child = child->next_sibling()) {
    if (IsElement(child)) {
      return child;
    }
  }
  return nullptr;
}

// Where in `document` (which `text`, NUL-terminated, copies) the failure at
// `path` belongs. With the archive's flags the parse fails where the archive's
// did, or builds the very tree the archive read.
std::optional<std::size_t> FindOffset(std::string_view document, std::vector<char>& text,
                                      std::string const& path) {
  // The document holds rapidxml's first block of memory in place: 64 KiB.
  auto parsed = std::make_unique<rapidxml::xml_document<char>>();
  try {
    parsed->parse<ArchiveParseFlags>(text.data());
  } catch (rapidxml::parse_error const& error) {
    char const* const where = error.where<char>();
    if (where == nullptr || where < text.data() || where >= text.data() + text.size()) {
      return std::nullopt;
    }
    return static_cast<std::size_t>(where - text.data());
  }
  // An element's name lies in place, right after its '<'.
  auto const startOf = [&text](Node const* element) {
    return static_cast<std::size_t>(element->name() - text.data()) - 1;
  };
  Node* element = Child(parsed.get(), RootName);
  if (element == nullptr) {
    Node const* const first = FirstElement(parsed.get());
    return first != nullptr ? startOf(first) : std::min(document.size(), document.find('\0'));
  }
  for (std::string const& token : SplitPointer(path)) {
    Node* const next = Step(element, token);
    if (next == nullptr) {
      break;
    }
    element = next;
  }
  return startOf(element);
}

std::optional<Location> LocateFailure(std::string_view document) noexcept {
  try {
    std::optional<std::string> path = FailedPath();
    if (!path) {
      return std::nullopt;
    }
    std::vector<char> text(document.begin(), document.end());
    text.push_back('\0');
    std::optional<std::size_t> const offset = FindOffset(document, text, *path);
    if (!offset) {
      return std::nullopt;
    }
    Location location;
    location.path = std::move(*path);
    LocateInText(document, *offset, location);
    return location;
  } catch (...) {
    return std::nullopt;
  }
}

}  // namespace

void RethrowLocatedInXml(std::string_view document) {
  std::optional<Location> location = LocateFailure(document);
  if (!location) {
    throw;
  }
  RethrowLocated(std::move(*location));
}

}  // namespace ryx::object::detail
