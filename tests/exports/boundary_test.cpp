// A program built against the installed interface catches the library's
// exceptions by their own types, although the library keeps the archives'
// symbols to itself.
#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>

namespace {

using namespace ryx::object;

TEST(Boundary, ExceptionsThrownInsideTheLibraryAreCaughtByTheirTypes) {
  std::shared_ptr<Object> deep = std::make_shared<Int32>(1);
  EXPECT_THROW(deep->As<Bool>(), BadCast);
  for (std::size_t level = 0; level <= GetNestingLimit(); ++level) {
    deep = std::make_shared<Array<Object>>(Array<Object>::Objects{deep});
  }
  EXPECT_THROW(ToJson(deep), NestingLimitError);
  EXPECT_THROW(FromJson("{\"typename\": 7}"), cereal::archive::JsonParseError);
}

}  // namespace
