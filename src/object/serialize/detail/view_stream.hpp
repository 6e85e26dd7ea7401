// detail::ViewStream: an input stream over bytes the caller owns, so that the
// From... functions read their argument without copying it first.
#pragma once

#include <climits>
#include <cstddef>
#include <cstring>
#include <istream>
#include <streambuf>
#include <string_view>

namespace ryx::object::detail {

class ViewBuffer : public std::streambuf {
 public:
  // The get area is never written: putback of a different character fails.
  explicit ViewBuffer(std::string_view bytes) {
    char* const begin = const_cast<char*>(bytes.data());
    setg(begin, begin, begin + bytes.size());
  }

  // The bytes read so far.
  std::size_t Position() const noexcept { return static_cast<std::size_t>(gptr() - eback()); }

 protected:
  // One copy instead of the base class's character loop: the binary form
  // reads every field through here.
  std::streamsize xsgetn(char* bytes, std::streamsize count) override {
    std::streamsize const available = egptr() - gptr();
    std::streamsize const taken = count < available ? count : available;
    if (taken > 0) {
      std::memcpy(bytes, gptr(), static_cast<std::size_t>(taken));
      // gbump takes an int; a read may be longer.
      std::streamsize left = taken;
      for (; left > INT_MAX; left -= INT_MAX) {
        gbump(INT_MAX);
      }
      gbump(static_cast<int>(left));
    }
    return taken;
  }
};

class ViewStream : private ViewBuffer, public std::istream {
 public:
  explicit ViewStream(std::string_view bytes)
      : ViewBuffer(bytes), std::istream(static_cast<ViewBuffer*>(this)) {}

  using ViewBuffer::Position;
};

}  // namespace ryx::object::detail
