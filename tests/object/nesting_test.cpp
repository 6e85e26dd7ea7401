#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;

enum class Shape { Arrays, Dictionaries, Mixed };

// A chain of `depth` containers, each holding the next, the innermost an Int32.
std::shared_ptr<Object> Nest(std::size_t depth, Shape shape) {
  std::shared_ptr<Object> inner = std::make_shared<Int32>(1);
  for (std::size_t level = 0; level < depth; ++level) {
    bool const array = shape == Shape::Arrays || (shape == Shape::Mixed && level % 2 == 0);
    if (array) {
      inner = std::make_shared<Array<Object>>(Array<Object>::Objects{std::move(inner)});
    } else {
      inner = std::make_shared<Dictionary<Object>>(
          Dictionary<Object>::Properties{{"next", std::move(inner)}});
    }
  }
  return inner;
}

// Deep enough that releasing it recursively overflows an 8 MiB stack even
// with the small frames of an optimised build (that happens from about 40,000
// levels on).
constexpr std::size_t Deep = 100000;

TEST(Nesting, ReleasingDeepChainsDoesNotOverflowTheStack) {
  for (Shape shape : {Shape::Arrays, Shape::Dictionaries, Shape::Mixed}) {
    std::shared_ptr<Object> deep = Nest(Deep, shape);
    deep.reset();
  }
  Required schema(Object::TypeIdOf<Int32>());
  for (int level = 0; level < 1000000; ++level) {
    std::vector<Required> children;
    children.push_back(std::move(schema));
    schema = Required(Object::TypeIdOf<Array<Object>>(), std::move(children));
  }
}

TEST(Nesting, ClearingAndPoppingReleaseDeepChildrenIteratively) {
  Array<Object> array(Array<Object>::Objects{Nest(Deep, Shape::Mixed)});
  array.Clear();
  Dictionary<Object> dictionary(Dictionary<Object>::Properties{{"deep", Nest(Deep, Shape::Mixed)}});
  dictionary.Clear();
  EXPECT_TRUE(array.Empty() && dictionary.Empty());
}

TEST(Nesting, ASharedChildSurvivesTheReleaseOfItsParentIntact) {
  std::shared_ptr<Object> shared = Nest(3, Shape::Mixed);
  {
    auto parent = std::make_shared<Array<Object>>(Array<Object>::Objects{shared, Nest(2, Shape::Arrays)});
  }
  EXPECT_TRUE(shared->EqualTo(*Nest(3, Shape::Mixed)));
}

TEST(Nesting, CopyAndCompareWorkUpToTheLimit) {
  std::shared_ptr<Object> const deep = Nest(GetNestingLimit(), Shape::Mixed);
  std::shared_ptr<Object> const copy = Object::Copy(*deep);
  ASSERT_TRUE(copy);
  EXPECT_NE(copy, deep);
  EXPECT_TRUE(copy->EqualTo(*deep));
}

TEST(Nesting, CopyAndCompareRefuseToGoDeeperThanTheLimit) {
  for (Shape shape : {Shape::Arrays, Shape::Dictionaries}) {
    std::shared_ptr<Object> const deep = Nest(GetNestingLimit() + 1, shape);
    std::string const limit = std::to_string(GetNestingLimit());
    try {
      Object::Copy(*deep);
      FAIL() << "no exception";
    } catch (NestingLimitError const& e) {
      EXPECT_EQ(e.what(), "Values to copy are nested deeper than the nesting limit of " + limit + " levels");
    }
    try {
      static_cast<void>(deep->EqualTo(*deep));
      FAIL() << "no exception";
    } catch (NestingLimitError const& e) {
      EXPECT_EQ(e.what(), "Values to compare are nested deeper than the nesting limit of " + limit + " levels");
    }
    // The failures unwound their counters: a shallow copy still works.
    EXPECT_TRUE(Object::Copy(*Nest(2, shape)));
  }
}

}  // namespace
