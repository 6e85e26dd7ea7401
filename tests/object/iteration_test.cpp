// Walking containers with iterators, and the adaptor that stores into a
// container's slot. Every allocation of the process is counted, to show that
// walking a container allocates nothing per step.
#include "support.hpp"

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

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
using container::ConstIterator;
using container::Iterator;
using ryx::object::testing::MessageOf;
using Objects = std::vector<std::shared_ptr<Object>>;

template <class T>
std::string Printed(T const& value) {
  std::ostringstream os;
  os << value;
  return os.str();
}

// Copies and converted copies advance on their own; an iterator at the end
// stays there.
TEST(Iteration, WalksASequenceInIndexOrderWithCopiesThatAdvanceIndependentlyAndPrintTheirState) {
  Objects objects{std::make_shared<Int32>(0), std::make_shared<Int32>(1),
                  std::make_shared<Int32>(2)};
  std::vector<int> seen;
  Iterator it = container::Begin(objects);
  Iterator copy = it;
  ConstIterator const converted = copy++;
  for (; it != Iterator(); ++it) {
    seen.push_back(it->As<Int32>().Get());
  }
  EXPECT_EQ(seen, (std::vector<int>{0, 1, 2}));
  ++it;
  EXPECT_TRUE(it == Iterator());
  EXPECT_FALSE(it);
  EXPECT_EQ(converted->As<Int32>().Get(), 0);
  EXPECT_EQ(copy->As<Int32>().Get(), 1);
  EXPECT_EQ((++copy)->As<Int32>().Get(), 2);
  ConstIterator single = Iterator(nullptr, objects[1]);  // no generator: one element
  EXPECT_EQ(single->As<Int32>().Get(), 1);
  EXPECT_TRUE(++single == ConstIterator());
  // Printed: whether there is a generator, and the address it stands on.
  EXPECT_EQ(Printed(converted), "{\"next_func\":true,\"current\":" +
                                    Printed(static_cast<void const*>(objects[0].get())) + "}");
  EXPECT_EQ(Printed(single),
            "{\"next_func\":false,\"current\":" + Printed(static_cast<void const*>(nullptr)) + "}");
  Objects empty;
  EXPECT_TRUE(container::Begin(empty) == Iterator());
  // Equality is identity of the current object.
  Objects twice{objects[0], objects[0]};
  EXPECT_TRUE(container::Begin(twice) == ++container::Begin(twice));
}

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

TEST(Iteration, WalkingAnArrayOrADictionaryAllocatesNothing) {
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

// A null element (what loading a null record leaves) ends the walk; the
// current element lives on while an iterator stands on it.
TEST(Iteration, ANullElementEndsTheWalkAndTheCurrentElementOutlivesItsRemoval) {
  Objects objects{std::make_shared<Int32>(1), nullptr, std::make_shared<Int32>(3)};
  int visited = 0;
  for (ConstIterator it = container::Begin(std::as_const(objects)); it != ConstIterator(); ++it) {
    ++visited;
  }
  EXPECT_EQ(visited, 1);
  Iterator const it = container::Begin(objects);
  objects.clear();
  EXPECT_EQ(it->As<Int32>().Get(), 1);
}

// An empty slot counts as released for Check and printing, but accepts an
// object; a moved-from adaptor refuses null first, then any object.
TEST(Adaptor, StoresANonNullObjectInTheCallersSlotAndRefusesNullFirstThenAReleasedSlot) {
  std::shared_ptr<Object> slot;
  Adaptor adaptor(slot);
  EXPECT_THROW(adaptor.Check(), std::logic_error);
  EXPECT_EQ(Printed(adaptor), "null");
  auto const stored = std::make_shared<String>("new");
  adaptor = stored;
  EXPECT_EQ(slot, stored);
  EXPECT_NO_THROW(adaptor.Check());
  EXPECT_EQ(Printed(adaptor), Printed(*stored));
  EXPECT_EQ(MessageOf<std::invalid_argument>([&] { adaptor = std::shared_ptr<Object>(); }),
            "Cannot assigned null object pointers into a container");
  Adaptor taker(std::move(adaptor));
  EXPECT_THROW(adaptor = std::shared_ptr<Object>(), std::invalid_argument);
  EXPECT_EQ(MessageOf<std::logic_error>([&] { adaptor = std::make_shared<Int32>(2); }),
            "The adaptor pointer has been released");
  EXPECT_THROW(adaptor.Check(), std::logic_error);
  EXPECT_EQ(Printed(adaptor), "null");
  EXPECT_EQ(slot, stored);
  // Swapped adaptors trade slots.
  std::shared_ptr<Object> other = std::make_shared<Int32>(9);
  Adaptor second(other);
  swap(taker, second);
  taker = std::make_shared<Int32>(10);
  EXPECT_EQ(other->As<Int32>().Get(), 10);
}

}  // namespace
