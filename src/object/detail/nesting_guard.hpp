// detail::NestingGuard: one level of nesting of a recursive operation (save
// and load of values, of schemas, deep copies, comparisons), counted per
// operation and thread for as long as the guard lives.
#pragma once

#include <cstddef>

namespace ryx::object::detail {

enum class Nesting { value, schema, copy, comparison };

class NestingGuard {
 public:
  // Throws NestingLimitError, counting nothing, when the new level would be
  // deeper than GetNestingLimit().
  explicit NestingGuard(Nesting nesting);
  NestingGuard(NestingGuard const&) = delete;
  NestingGuard& operator=(NestingGuard const&) = delete;
  ~NestingGuard() { --depth; }

 private:
  std::size_t& depth;
};

}  // namespace ryx::object::detail
