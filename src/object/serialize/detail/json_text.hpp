// detail::JsonText: rapidjson's output stream concept over the std::string
// that ToJson returns, so that the text is written in place, once.
//
// The string grows by doubling; a failed growth throws std::bad_alloc and
// leaves what was written so far.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace ryx::object::detail {

class JsonText {
 public:
  using Ch = char;

  void Put(char c) {
    if (next == end) {
      Grow();
    }
    *next++ = c;
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

  void Grow() {
    std::size_t const written = Written();
    text.resize(std::max<std::size_t>(2 * text.size(), 4096));
    next = text.data() + written;
    end = text.data() + text.size();
  }

  std::string text;
  char* next = nullptr;
  char* end = nullptr;
};

}  // namespace ryx::object::detail
