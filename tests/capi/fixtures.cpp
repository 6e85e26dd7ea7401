#include "fixtures.h"

#include <ryx/object.hpp>

#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace {

using namespace ryx::object;

class Unregistered : public Object {
 public:
  Unregistered() : Object(ryx::hash::MurmurThree32::MakeData("ryx.tests.Unregistered")) {}
  void Set(Object const& /*other*/) override {}
  bool EqualTo(Object const& /*other*/) const override { return false; }
};

}  // namespace

extern "C" RyxObject* MakeStringWithNul(void) {
  return Convert(std::make_shared<String>(std::string("a\0b", 3)));
}

extern "C" RyxObject* MakeUnregisteredValue(void) {
  return Convert(std::make_shared<Unregistered>());
}

extern "C" RyxObject* MakeEmptyHandle(void) {
  // The handle's layout: a heap-allocated std::shared_ptr<Object>.
  return reinterpret_cast<RyxObject*>(new std::shared_ptr<Object>());
}

extern "C" RyxObject* MakeRequiring(uint32_t container, uint32_t element) {
  using ryx::hash::MurmurThree32;
  return Convert(Required(MurmurThree32(container), {Required(MurmurThree32(element))}).Make());
}

extern "C" RyxObject* MakeDefaultEnum(void) {
  return Convert(Required(Object::TypeIdOf<Enum<Object>>()).Make());
}

// The test program replaces the global allocation functions, so that the
// library's allocations can be made to fail one at a time.
namespace {

thread_local int allocationsUntilFailure = 0;

void* Allocate(std::size_t size) {
  if (allocationsUntilFailure > 0 && --allocationsUntilFailure == 0) {
    throw std::bad_alloc();
  }
  if (void* const block = std::malloc(size != 0 ? size : 1)) {
    return block;
  }
  throw std::bad_alloc();
}

}  // namespace

extern "C" void FailNthAllocation(int n) { allocationsUntilFailure = n; }

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
  try {
    return Allocate(size);
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}
void* operator new[](std::size_t size, std::nothrow_t const& tag) noexcept {
  return operator new(size, tag);
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
void operator delete(void* block, std::nothrow_t const&) noexcept { std::free(block); }
void operator delete[](void* block, std::nothrow_t const&) noexcept { std::free(block); }
