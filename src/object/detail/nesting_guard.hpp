// Counts the nesting of recursive container operations on this thread and
// refuses to go deeper than container::MaxNesting.
#pragma once

#include <ryx/object/container/nesting.hpp>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace ryx::object::detail {

class NestingGuard {
public:
  explicit NestingGuard(char const* operation) {
    if (depth >= container::MaxNesting) {
      throw std::runtime_error(std::string("Cannot ") + operation + " values nested deeper than " +
                               std::to_string(container::MaxNesting) + " levels");
    }
    ++depth;
  }
  NestingGuard(NestingGuard const&) = delete;
  NestingGuard& operator=(NestingGuard const&) = delete;
  ~NestingGuard() { --depth; }

private:
  static inline thread_local std::size_t depth = 0;
};

}  // namespace ryx::object::detail
