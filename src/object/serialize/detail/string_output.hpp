// detail::StringOutput: bytes written straight into the std::string that the
// direct writers return, so that the text is written in place, once. It is
// also rapidjson's output stream concept (Put, Flush, and PutN below).
//
// The string grows by doubling; a failed growth throws std::bad_alloc and
// leaves what was written so far.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>

namespace ryx::object::detail {

class StringOutput {
 public:
  using Ch = char;

  void Put(char c) {
    if (next == end) {
      Grow(1);
    }
    *next++ = c;
  }

  void Write(char const* bytes, std::size_t count) {
    if (static_cast<std::size_t>(end - next) < count) {
      Grow(count);
    }
    std::memcpy(next, bytes, count);
    next += count;
  }

  void Fill(char c, std::size_t count) {
    if (static_cast<std::size_t>(end - next) < count) {
      Grow(count);
    }
    std::memset(next, c, count);
    next += count;
  }

  void Flush() noexcept {}

  // The text written so far; the stream is empty afterwards.
  std::string Take() {
    text.resize(Written());
    std::string taken = std::move(text);
    text.clear();
    next = end = nullptr;
    return taken;
  }

 private:
  std::size_t Written() const noexcept {
    return next != nullptr ? static_cast<std::size_t>(next - text.data()) : 0;
  }

  // Doubles the storage at least, so that writing n bytes costs O(n).
  void Grow(std::size_t needed) {
    std::size_t const written = Written();
    text.resize(std::max({written + needed, 2 * text.size(), std::size_t(4096)}));
    next = text.data() + written;
    end = text.data() + text.size();
  }

  std::string text;
  char* next = nullptr;
  char* end = nullptr;
};

// rapidjson's writers repeat a character (indentation) through PutN, found
// by argument-dependent lookup: one fill instead of a Put per character.
inline void PutN(StringOutput& stream, char c, std::size_t count) { stream.Fill(c, count); }

}  // namespace ryx::object::detail
