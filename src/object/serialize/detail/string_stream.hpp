// detail::StringStream: an output stream that writes straight into the
// std::string it hands back, so the To... functions neither copy the finished
// text (as std::ostringstream::str() does) nor grow it in small steps.
//
// A failed growth throws from the buffer. std::ostream catches that and only
// sets badbit, which the archives do not look at, so the buffer keeps the
// failure and Take throws it: a text that lost a write is never returned.
// The stream itself never throws, because the text archives write their last
// bytes from noexcept destructors.
#pragma once

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstring>
#include <exception>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>

namespace ryx::object::detail {

class StringBuffer : public std::streambuf {
 public:
  // The text written so far; the buffer is empty afterwards. Throws the
  // failure of a write that did not reach the text.
  std::string Take() {
    if (failure) {
      std::rethrow_exception(std::exchange(failure, nullptr));
    }
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
    try {
      text.resize(std::max({written + needed, 2 * text.size(), std::size_t(4096)}));
    } catch (...) {
      failure = std::current_exception();
      throw;
    }
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
  std::exception_ptr failure;
};

class StringStream : private StringBuffer, public std::ostream {
 public:
  StringStream() : std::ostream(static_cast<StringBuffer*>(this)) {}

  using StringBuffer::Take;
};

}  // namespace ryx::object::detail
