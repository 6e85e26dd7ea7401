#include "object/detail/thread_stack.hpp"

#include <pthread.h>

namespace ryx::object::detail {

ThreadStack FindThreadStack() noexcept {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
    return {};
  }
  void* low = nullptr;
  std::size_t size = 0;
  int const found = pthread_attr_getstack(&attributes, &low, &size);
  pthread_attr_destroy(&attributes);
  if (found != 0 || low == nullptr) {
    return {};
  }
  auto const start = reinterpret_cast<std::uintptr_t>(low);
  return {start, start + size};
}

}  // namespace ryx::object::detail
