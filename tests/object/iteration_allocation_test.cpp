// Counts every allocation of the process to show that walking a container
// allocates nothing per step.
#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace {
std::atomic<std::size_t> allocations{0};
}  // namespace

// The replacements pair malloc with free themselves; once inlined, GCC
// cannot see that and would warn about operator new paired with free.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void* operator new(std::size_t size) {
  ++allocations;
  if (void* p = std::malloc(size == 0 ? 1 : size)) {
    return p;
  }
  throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

namespace {

using namespace ryx::object;

// The allocations of walking `container`, which must hold 100 elements.
template <class Container>
std::size_t AllocationsOfAWalk(Container& container) {
  std::size_t const before = allocations.load();
  std::size_t visited = 0;
  for (auto it = container.Begin(); it != container.End(); ++it) {
    ++visited;
  }
  EXPECT_EQ(visited, 100u);
  return allocations.load() - before;
}

TEST(IterationAllocation, WalkingAnArrayOrADictionaryAllocatesNothing) {
  Array<Object> array;
  Dictionary<Object> dictionary;
  for (int i = 0; i < 100; ++i) {
    array.Append(std::make_shared<Int32>(i));
    dictionary.Insert(std::to_string(i), std::make_shared<Int32>(i));
  }
  EXPECT_EQ(AllocationsOfAWalk(std::as_const(array)), 0u);
  EXPECT_EQ(AllocationsOfAWalk(std::as_const(dictionary)), 0u);
  EXPECT_EQ(AllocationsOfAWalk(static_cast<Object&>(array)), 0u);
}

}  // namespace
