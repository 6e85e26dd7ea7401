// detail::StringStream: an output stream that writes straight into the
// std::string it hands back, so the To... functions neither copy the finished
// text (as std::ostringstream::str() does) nor grow it in small steps.
#pragma once

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstring>
#include <new>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

namespace ryx::object::detail {

class StringBuffer : public std::streambuf {
 public:
  // The text written so far; the buffer is empty afterwards.
  std::string Take() {
    text.resize(Written());
    std::string taken = std::move(text);
    text.clear();
    setp(nullptr, nullptr);
    return taken;
  }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) {
      return traits_type::not_eof(c);
    }
    Grow(1);
    *pptr() = traits_type::to_char_type(c);
    pbump(1);
    return c;
  }

  std::streamsize xsputn(char const* bytes, std::streamsize count) override {
    if (count <= 0) {
      return 0;
    }
    std::size_t const size = static_cast<std::size_t>(count);
    if (static_cast<std::size_t>(epptr() - pptr()) < size) {
      Grow(size);
    }
    std::memcpy(pptr(), bytes, size);
    Advance(size);
    return count;
  }

 private:
  std::size_t Written() const { return static_cast<std::size_t>(pptr() - pbase()); }

  // Doubles the storage at least, so that writing n bytes costs O(n).
  void Grow(std::size_t needed) {
    std::size_t const written = Written();
    text.resize(std::max({written + needed, 2 * text.size(), std::size_t(4096)}));
    setp(text.data(), text.data() + text.size());
    Advance(written);
  }

  // pbump takes an int; a text may be longer.
  void Advance(std::size_t count) {
    while (count > static_cast<std::size_t>(INT_MAX)) {
      pbump(INT_MAX);
      count -= static_cast<std::size_t>(INT_MAX);
    }
    pbump(static_cast<int>(count));
  }

  std::string text;
};

class StringStream : private StringBuffer, public std::ostream {
 public:
  StringStream() : std::ostream(static_cast<StringBuffer*>(this)) {}

  // The text written. The stream swallows what its buffer throws and only
  // sets badbit; the buffer fails only for want of memory, so a bad stream,
  // which has lost text, throws std::bad_alloc here instead of handing out a
  // truncated document.
  std::string Take() {
    if (bad()) {
      throw std::bad_alloc();
    }
    return StringBuffer::Take();
  }
};

}  // namespace ryx::object::detail
