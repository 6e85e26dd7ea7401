#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

using namespace ryx::object;
using container::ConstIterator;
using container::Iterator;

std::vector<std::shared_ptr<Object>> ThreeInts() {
  return {std::make_shared<Int32>(0), std::make_shared<Int32>(1), std::make_shared<Int32>(2)};
}

std::string Printed(ConstIterator const& it) {
  std::ostringstream os;
  os << it;
  return os.str();
}

TEST(Iteration, WalksASequenceInIndexOrder) {
  auto objects = ThreeInts();
  std::vector<int> seen;
  for (Iterator it = container::Begin(objects); it != Iterator(); ++it) {
    seen.push_back(it->As<Int32>().Get());
  }
  EXPECT_EQ(seen, (std::vector<int>{0, 1, 2}));
}

TEST(Iteration, AnEmptySequenceBeginsAtItsEnd) {
  std::vector<std::shared_ptr<Object>> empty;
  Iterator const first = container::Begin(empty);
  EXPECT_TRUE(first == Iterator());
  EXPECT_FALSE(static_cast<bool>(first));
}

TEST(Iteration, WalksTheValuesOfAMapOnceEach) {
  std::unordered_map<std::string, std::shared_ptr<Object>> map{
      {"a", std::make_shared<Int32>(1)},
      {"b", std::make_shared<Int32>(2)},
      {"c", std::make_shared<Int32>(3)}};
  std::unordered_multiset<int> seen;
  for (ConstIterator it = container::Begin(std::as_const(map)); it != container::End(map); ++it) {
    seen.insert((*it).As<Int32>().Get());
  }
  EXPECT_EQ(seen, (std::unordered_multiset<int>{1, 2, 3}));
}

TEST(Iteration, EqualityIsIdentityOfTheCurrentObject) {
  auto const shared = std::make_shared<Int32>(5);
  std::vector<std::shared_ptr<Object>> twice{shared, shared};
  Iterator first = container::Begin(twice);
  Iterator second = container::Begin(twice);
  ++second;
  EXPECT_TRUE(first == second);
  ++second;
  EXPECT_TRUE(second == Iterator());
}

TEST(Iteration, CopiesAdvanceIndependently) {
  auto objects = ThreeInts();
  Iterator const first = container::Begin(objects);
  Iterator copy = first;
  ++copy;
  EXPECT_EQ(first->As<Int32>().Get(), 0);
  EXPECT_EQ(copy->As<Int32>().Get(), 1);
  Iterator const previous = copy++;
  EXPECT_EQ(previous->As<Int32>().Get(), 1);
  EXPECT_EQ(copy->As<Int32>().Get(), 2);
}

TEST(Iteration, AConvertedIteratorYieldsTheSameObjects) {
  auto objects = ThreeInts();
  Iterator it = container::Begin(objects);
  ConstIterator converted = it;
  for (int i = 0; i < 3; ++i, ++it, ++converted) {
    ASSERT_TRUE(converted);
    EXPECT_EQ(converted.operator->().get(), it.operator->().get());
  }
  EXPECT_FALSE(converted);
  EXPECT_FALSE(it);
}

TEST(Iteration, AnEndIteratorStaysAtItsEnd) {
  Iterator end;
  ++end;
  EXPECT_FALSE(end);
  std::vector<std::shared_ptr<Object>> one{std::make_shared<Int32>(1)};
  Iterator it = container::Begin(one);
  ++it;
  ++it;
  EXPECT_TRUE(it == Iterator());
}

TEST(Iteration, ANullElementEndsTheWalk) {
  std::vector<std::shared_ptr<Object>> loaded{std::make_shared<Int32>(1), nullptr,
                                              std::make_shared<Int32>(3)};
  int visited = 0;
  for (ConstIterator it = container::Begin(std::as_const(loaded)); it != ConstIterator(); ++it) {
    ++visited;
  }
  EXPECT_EQ(visited, 1);
}

TEST(Iteration, TheCurrentElementOutlivesItsRemoval) {
  std::vector<std::shared_ptr<Object>> objects{std::make_shared<Int32>(7)};
  Iterator const it = container::Begin(objects);
  objects.clear();
  EXPECT_EQ(it->As<Int32>().Get(), 7);
}

TEST(Iteration, PrintsWhetherItHasAGeneratorAndWhereItStands) {
  std::ostringstream null;
  null << static_cast<void const*>(nullptr);
  EXPECT_EQ(Printed(ConstIterator()), "{\"next_func\":false,\"current\":" + null.str() + "}");
  std::unordered_map<std::string, std::shared_ptr<Object>> map;
  EXPECT_EQ(Printed(container::End(std::as_const(map))),
            "{\"next_func\":true,\"current\":" + null.str() + "}");
  auto objects = ThreeInts();
  std::ostringstream address;
  address << static_cast<void const*>(objects[0].get());
  std::ostringstream mutableForm;
  mutableForm << container::Begin(objects);
  EXPECT_EQ(mutableForm.str(), "{\"next_func\":true,\"current\":" + address.str() + "}");
}

TEST(Adaptor, StoresANonNullObjectInTheCallersSlot) {
  std::shared_ptr<Object> slot = std::make_shared<Int32>(1);
  Adaptor adaptor(slot);
  EXPECT_NO_THROW(adaptor.Check());
  auto const replacement = std::make_shared<String>("new");
  adaptor = replacement;
  EXPECT_EQ(slot, replacement);
  std::ostringstream os;
  os << adaptor;
  EXPECT_EQ(os.str(), "{\"type\":\"ryx.object.String\",\"id\":" +
                          std::to_string(Object::TypeIdOf<String>().GetValue()) + "}");
}

TEST(Adaptor, RefusesNullFirstThenAReleasedSlot) {
  std::shared_ptr<Object> slot = std::make_shared<Int32>(1);
  Adaptor adaptor(slot);
  try {
    adaptor = std::shared_ptr<Object>();
    FAIL() << "expected std::invalid_argument";
  } catch (std::invalid_argument const& e) {
    EXPECT_STREQ(e.what(), "Cannot assigned null object pointers into a container");
  }
  Adaptor taker(std::move(adaptor));
  EXPECT_THROW(adaptor = std::shared_ptr<Object>(), std::invalid_argument);
  try {
    adaptor = std::make_shared<Int32>(2);
    FAIL() << "expected std::logic_error";
  } catch (std::logic_error const& e) {
    EXPECT_STREQ(e.what(), "The adaptor pointer has been released");
  }
  EXPECT_THROW(adaptor.Check(), std::logic_error);
  EXPECT_EQ(slot->As<Int32>().Get(), 1);
  std::ostringstream os;
  os << adaptor;
  EXPECT_EQ(os.str(), "null");
}

TEST(Adaptor, AnEmptySlotChecksAsReleasedButAcceptsAnObject) {
  std::shared_ptr<Object> slot;
  Adaptor adaptor(slot);
  EXPECT_THROW(adaptor.Check(), std::logic_error);
  adaptor = std::make_shared<Int32>(4);
  EXPECT_NO_THROW(adaptor.Check());
  std::shared_ptr<Object> other = std::make_shared<Int32>(9);
  Adaptor second(other);
  swap(adaptor, second);
  adaptor = std::make_shared<Int32>(10);
  EXPECT_EQ(other->As<Int32>().Get(), 10);
  EXPECT_EQ(slot->As<Int32>().Get(), 4);
}

}  // namespace
