// detail::ViewStream: an input stream over bytes the caller owns, so that the
// From... functions read their argument without copying it first.
#pragma once

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
};

class ViewStream : private ViewBuffer, public std::istream {
 public:
  explicit ViewStream(std::string_view bytes)
      : ViewBuffer(bytes), std::istream(static_cast<ViewBuffer*>(this)) {}
};

}  // namespace ryx::object::detail
