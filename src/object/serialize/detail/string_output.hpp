// detail::StringOutput: the bytes of the direct writers, handed back as a
// std::string. It is also rapidjson's output stream concept (Put, Flush, and
// PutN below).
//
// The bytes go into a buffer grown with realloc, which extends a large block
// in place (or remaps it) instead of copying it, and are copied once into the
// string at the end. A std::string would copy everything written at each
// doubling and fill its new half with zeros first: three times the traffic
// of the text itself. A failed growth throws std::bad_alloc and leaves what
// was written so far.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

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

  // The text written so far.
  std::string Take() const {
    return begin != nullptr ? std::string(begin, Written()) : std::string();
  }

  StringOutput() = default;
  StringOutput(StringOutput const&) = delete;
  StringOutput& operator=(StringOutput const&) = delete;
  ~StringOutput() { std::free(begin); }

 private:
  std::size_t Written() const noexcept { return static_cast<std::size_t>(next - begin); }

  // Doubles the storage at least, so that writing n bytes costs O(n).
  void Grow(std::size_t needed) {
    std::size_t const written = Written();
    std::size_t const size =
        std::max({written + needed, 2 * static_cast<std::size_t>(end - begin), std::size_t(4096)});
    void* const grown = std::realloc(begin, size);
    if (grown == nullptr) {
      throw std::bad_alloc();
    }
    begin = static_cast<char*>(grown);
    next = begin + written;
    end = begin + size;
  }

  char* begin = nullptr;
  char* next = nullptr;
  char* end = nullptr;
};

// rapidjson's writers repeat a character (indentation) through PutN, found
// by argument-dependent lookup: one fill instead of a Put per character.
inline void PutN(StringOutput& stream, char c, std::size_t count) { stream.Fill(c, count); }

}  // namespace ryx::object::detail
