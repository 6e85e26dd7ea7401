#include "object/detail/thread_stack.hpp"

#include <pthread.h>

#include <cerrno>
#include <new>

namespace ryx::object::detail {

ThreadStack FindThreadStack() {
  pthread_attr_t attributes;
  if (int const error = pthread_getattr_np(pthread_self(), &attributes); error != 0) {
    // Short of memory the answer is only put off; anything else is final.
    if (error == ENOMEM) {
      throw std::bad_alloc();
    }
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
