#include "object/serialize/detail/xml_depth.hpp"

namespace ryx::object::detail {

namespace {

constexpr std::size_t End = std::string_view::npos;

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool IsNameChar(char c) { return c != '\0' && !IsSpace(c) && c != '/' && c != '>' && c != '?'; }
bool IsAttributeNameChar(char c) { return IsNameChar(c) && c != '<' && c != '=' && c != '!'; }
bool IsLetter(char c, char lower) { return c == lower || c == lower - 'a' + 'A'; }

// Walks markup the way the XML parser reads it. Every Skip... returns the
// position after the construct, or End where the parser reports an error: it
// reads nothing after that, so neither does the scan.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : text(text) {}

  // The offset of the '<' of the first element deeper than `maxDepth`, or End.
  std::size_t Scan(std::size_t maxDepth) const {
    std::size_t depth = 0;
    std::size_t at = 0;
    while (at != End && (at = text.find('<', at)) != End) {
      std::size_t const open = at++;
      if (At(at) == '/') {
        depth -= depth != 0 ? 1 : 0;
        at = Past(at, ">");
      } else if (At(at) == '?') {
        at = IsDeclaration(at) ? SkipDeclaration(at + 5) : Past(at + 1, "?>");
      } else if (At(at) == '!') {
        at = SkipBang(at);
      } else {
        // An empty element still costs the parser one level.
        if (++depth > maxDepth) {
          return open;
        }
        bool empty = false;
        at = SkipStartTag(at, empty);
        depth -= empty ? 1 : 0;
      }
    }
    return End;
  }

 private:
  char At(std::size_t at) const { return at < text.size() ? text[at] : '\0'; }

  std::size_t Past(std::size_t at, std::string_view end) const {
    std::size_t const found = text.find(end, at);
    return found == End ? End : found + end.size();
  }

  std::size_t SkipSpace(std::size_t at) const {
    while (IsSpace(At(at))) {
      ++at;
    }
    return at;
  }

  bool IsDeclaration(std::size_t at) const {
    return IsLetter(At(at + 1), 'x') && IsLetter(At(at + 2), 'm') && IsLetter(At(at + 3), 'l') &&
           IsSpace(At(at + 4));
  }

  // name = "value" pairs; End on a malformed one.
  std::size_t SkipAttributes(std::size_t at) const {
    at = SkipSpace(at);
    while (at < text.size() && IsAttributeNameChar(text[at])) {
      while (IsAttributeNameChar(At(at))) {
        ++at;
      }
      at = SkipSpace(at);
      if (At(at) != '=') {
        return End;
      }
      at = SkipSpace(at + 1);
      char const quote = At(at);
      if (quote != '"' && quote != '\'') {
        return End;
      }
      at = text.find(quote, at + 1);
      if (at == End) {
        return End;
      }
      at = SkipSpace(at + 1);
    }
    return at;
  }

  std::size_t SkipDeclaration(std::size_t at) const {
    at = SkipAttributes(at);
    return at != End && At(at) == '?' && At(at + 1) == '>' ? at + 2 : End;
  }

  std::size_t SkipStartTag(std::size_t at, bool& empty) const {
    std::size_t const name = at;
    while (IsNameChar(At(at))) {
      ++at;
    }
    if (at == name || (at = SkipAttributes(at)) == End) {
      return End;
    }
    if (At(at) == '>') {
      return at + 1;
    }
    empty = true;
    return At(at) == '/' && At(at + 1) == '>' ? at + 2 : End;
  }

  std::size_t SkipBang(std::size_t at) const {
    if (At(at + 1) == '-' && At(at + 2) == '-') {
      return Past(at + 3, "-->");
    }
    if (text.compare(at + 1, 7, "[CDATA[") == 0) {
      return Past(at + 8, "]]>");
    }
    if (text.compare(at + 1, 7, "DOCTYPE") == 0 && IsSpace(At(at + 8))) {
      return SkipDoctype(at + 9);
    }
    return Past(at + 1, ">");
  }

  // Up to '>', with bracketed sections nested.
  std::size_t SkipDoctype(std::size_t at) const {
    while (At(at) != '>') {
      if (at >= text.size()) {
        return End;
      }
      if (text[at] == '[') {
        std::size_t depth = 1;
        for (++at; depth != 0; ++at) {
          if (at >= text.size()) {
            return End;
          }
          depth += text[at] == '[' ? 1 : 0;
          depth -= text[at] == ']' ? 1 : 0;
        }
      } else {
        ++at;
      }
    }
    return at + 1;
  }

  std::string_view text;
};

}  // namespace

std::optional<std::size_t> XmlTooDeepAt(std::string_view document, std::size_t maxDepth) {
  // The parser stops at the first NUL byte.
  std::size_t const at = Scanner(document.substr(0, document.find('\0'))).Scan(maxDepth);
  return at != End ? std::optional<std::size_t>(at) : std::nullopt;
}

}  // namespace ryx::object::detail
