// detail::JsonStackAllocator: the allocator of the direct JSON writer's and
// reader's working stacks, in rapidjson's allocator concept.
//
// rapidjson's own allocator hands back NULL when memory runs out, and its
// stacks do not check: it throws std::bad_alloc instead. A failed Realloc
// leaves the original block alone, so the stack that asked still frees it.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

namespace ryx::object::detail {

class JsonStackAllocator {
 public:
  static bool const kNeedFree = true;

  void* Malloc(std::size_t size) {
    if (size == 0) {
      return nullptr;
    }
    return Checked(std::malloc(size));
  }

  void* Realloc(void* original, std::size_t /*originalSize*/, std::size_t newSize) {
    if (newSize == 0) {
      std::free(original);
      return nullptr;
    }
    return Checked(std::realloc(original, newSize));
  }

  static void Free(void* block) { std::free(block); }

 private:
  static void* Checked(void* block) {
    if (block == nullptr) {
      throw std::bad_alloc();
    }
    return block;
  }
};

}  // namespace ryx::object::detail
