#include "object/serialize/detail/json_location.hpp"

#include <cstdint>
#include <string>
#include <vector>

#include "object/serialize/detail/archives.hpp"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace ryx::object::detail {

namespace {

using rapidjson::SizeType;

// The path's reference tokens, "~1" and "~0" decoded.
std::vector<std::string> Tokens(std::string_view path) {
  std::vector<std::string> tokens;
  for (std::size_t at = 0; at < path.size();) {
    std::size_t const next = path.find('/', at + 1);
    std::string_view const raw =
        path.substr(at + 1, next == std::string_view::npos ? std::string_view::npos : next - at - 1);
    std::string token;
    for (std::size_t i = 0; i < raw.size(); ++i) {
      if (raw[i] == '~' && i + 1 < raw.size()) {
        token += raw[++i] == '1' ? '/' : '~';
      } else {
        token += raw[i];
      }
    }
    tokens.push_back(std::move(token));
    at = next == std::string_view::npos ? path.size() : next;
  }
  return tokens;
}

// The SAX handler: it follows the values down the document, and stops at the
// one the path names.
class Finder {
 public:
  Finder(rapidjson::MemoryStream const& in, std::vector<std::string> target)
      : in(in), target(std::move(target)) {}

  std::optional<std::size_t> Found() const { return found; }

  bool StartObject() {
    Node node(Role::Other);
    if (nodes.empty()) {
      return Value(node, std::nullopt);
    }
    Node& parent = nodes.back();
    switch (parent.role) {
      case Role::Objects:
        return Value(node, std::to_string(parent.index++));
      case Role::Properties:
        ++parent.index;
        node.role = Role::Entry;
        break;
      case Role::Entry:
        if (parent.key == "value") {
          return Value(node, parent.keySeen ? std::optional<std::string>(parent.entryKey)
                                            : std::nullopt);
        }
        break;
      case Role::Value:
        if (parent.key != "required") {
          return Value(node, parent.key);
        }
        break;
      case Role::Other:
        ++parent.index;
        break;
    }
    nodes.push_back(std::move(node));
    return true;
  }

  bool EndObject(SizeType) { return End(); }

  bool StartArray() {
    Node node(Role::Other);
    if (!nodes.empty()) {
      Node& parent = nodes.back();
      ++parent.index;
      if (parent.role == Role::Value && parent.key == "objects") {
        node.role = Role::Objects;
      } else if (parent.role == Role::Value && parent.key == "properties") {
        node.role = Role::Properties;
      }
    }
    nodes.push_back(std::move(node));
    return true;
  }

  bool EndArray(SizeType) { return End(); }

  bool Key(char const* text, SizeType length, bool) {
    nodes.back().key.assign(text, length);
    return true;
  }

  bool String(char const* text, SizeType length, bool) {
    if (!nodes.empty()) {
      Node& parent = nodes.back();
      if (parent.role == Role::Entry && parent.key == "key") {
        parent.entryKey.assign(text, length);
        parent.keySeen = true;
      }
    }
    return Scalar();
  }

  bool Null() { return Scalar(); }
  bool Bool(bool) { return Scalar(); }
  bool Int(int) { return Scalar(); }
  bool Uint(unsigned) { return Scalar(); }
  bool Int64(std::int64_t) { return Scalar(); }
  bool Uint64(std::uint64_t) { return Scalar(); }
  bool Double(double) { return Scalar(); }
  bool RawNumber(char const*, SizeType, bool) { return Scalar(); }

 private:
  enum class Role : std::uint8_t { Value, Objects, Properties, Entry, Other };

  struct Node {
    explicit Node(Role role) noexcept : role(role) {}

    Role role;
    std::string key;          // an object's latest member name
    std::size_t index = 0;    // an array's elements so far
    std::string entryKey;     // an entry's "key"
    bool keySeen = false;
    bool onPath = false;      // a value on the way to the target
  };

  // A value's node opens, named by `segment` under its parent value; one
  // whose name is unknown (an entry's key after its value) leaves the path.
  bool Value(Node node, std::optional<std::string> const& segment) {
    std::size_t const level = depth;  // the segments from the root to it
    node.role = Role::Value;
    node.onPath = level == 0 || (OnPath() && segment && level <= target.size() &&
                                 target[level - 1] == *segment);
    bool const onPath = node.onPath;
    nodes.push_back(std::move(node));
    ++depth;
    if (onPath) {
      // The reader calls the handler before it takes the brace.
      found = in.Tell();
      if (level == target.size()) {
        return false;  // there: stop
      }
    }
    return true;
  }

  bool OnPath() const {
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
      if (node->role == Role::Value) {
        return node->onPath;
      }
    }
    return true;
  }

  bool End() {
    if (nodes.back().role == Role::Value) {
      --depth;
    }
    nodes.pop_back();
    return true;
  }

  bool Scalar() {
    if (!nodes.empty()) {
      ++nodes.back().index;
    }
    return true;
  }

  rapidjson::MemoryStream const& in;
  std::vector<std::string> const target;
  std::vector<Node> nodes;
  std::size_t depth = 0;  // values open, the root included
  std::optional<std::size_t> found;
};

}  // namespace

std::optional<std::size_t> FindJsonValue(std::string_view document, std::string_view path) {
  rapidjson::MemoryStream in(document.data(), document.size());
  Finder finder(in, Tokens(path));
  rapidjson::Reader reader;
  try {
    reader.Parse(in, finder);
  } catch (cereal::archive::JsonParseError const&) {
    return std::nullopt;
  }
  if (reader.HasParseError() && reader.GetParseErrorCode() != rapidjson::kParseErrorTermination) {
    return std::nullopt;
  }
  return finder.Found();
}

}  // namespace ryx::object::detail
