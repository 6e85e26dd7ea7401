// Records holding records to any depth keep the guarantees of the built-in
// containers: releasing never recurses, copies, comparisons and loads stop at
// the nesting limit, and on small thread stacks every recursive operation
// finishes or refuses.
#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include "record/everything.hpp"
#include "support.hpp"

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;
using ryx::object::testing::RunOnStack;
using test::Chain;

// Records and arrays in turn, so that each hands its children to the other.
std::shared_ptr<Object> MixedChain(std::size_t levels) {
  std::shared_ptr<Object> value = std::make_shared<Int32>(1);
  for (std::size_t level = 0; level != levels; ++level) {
    if (level % 2 == 0) {
      auto record = std::make_shared<test::EverythingRecord>();
      record->child = std::move(value);
      value = std::move(record);
    } else {
      value = std::make_shared<Array<Object>>(Array<Object>::Objects{std::move(value)});
    }
  }
  return value;
}

TEST(RecordNesting, ReleasingADeepChainNeverRecursesAndSparesASharedChild) {
  auto const shared = Chain(2);
  auto holder = std::make_shared<test::EverythingRecord>();
  holder->child = shared;
  std::shared_ptr<Object> values[] = {Chain(20000), MixedChain(20000), holder};
  for (std::shared_ptr<Object>& value : values) {
    EXPECT_EQ(RunOnStack(64 << 10, [&] { value.reset(); }), "finished");
  }
  EXPECT_TRUE(shared->EqualTo(*Chain(2)));
}

TEST(RecordNesting, CopyCompareAndLoadStopAtTheLimit) {
  auto const atLimit = Chain(GetNestingLimit());
  auto const copy = Object::Copy(*atLimit);
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->EqualTo(*atLimit));

  std::string const limit = std::to_string(GetNestingLimit()) + " levels";
  auto const deep = Chain(GetNestingLimit() + 1);
  EXPECT_EQ(MessageOf<NestingLimitError>([&] { Object::Copy(*deep); }),
            "Values to copy are nested deeper than the nesting limit of " + limit);
  EXPECT_EQ(MessageOf<NestingLimitError>([&] { static_cast<void>(deep->EqualTo(*deep)); }),
            "Values to compare are nested deeper than the nesting limit of " + limit);

  // A document nested one level too deep, as a hostile one would be.
  SetNestingLimit(2 * DefaultNestingLimit);
  std::string const json = ToJson(deep, JsonLayout::Compact);
  std::string const xml = ToXml(deep);
  std::string const binary = ToBinary(deep);
  SetNestingLimit(DefaultNestingLimit);
  std::string const values = "Values are nested deeper than the nesting limit of " + limit;
  EXPECT_EQ(MessageOf<NestingLimitError>([&] { FromJson(json); }), values);
  EXPECT_EQ(MessageOf<NestingLimitError>([&] { FromBinary(binary); }), values);
  EXPECT_THROW(FromXml(xml), NestingLimitError);
  EXPECT_TRUE(Object::Copy(*Chain(2)));  // the failures unwound their counters
}

TEST(RecordSmallStacks, EveryRecursiveOperationFinishesOrRefusesAtAnyDepth) {
  // Only the stack stops these depths.
  SetNestingLimit(1000000);
  for (std::size_t depth : {3, 500}) {
    for (std::shared_ptr<Object> const& value : {Chain(depth), MixedChain(depth)}) {
      std::string json;
      std::string xml;
      std::string binary;
      EXPECT_EQ(RunOnStack(64 << 20,
                           [&] {
                             json = ToJson(value, JsonLayout::Compact);
                             std::ostringstream text;
                             {
                               cereal::XMLOutputArchive archive(
                                   text, cereal::XMLOutputArchive::Options().indent(false));
                               Save(archive, value);
                             }
                             xml = text.str();
                             binary = ToBinary(value);
                           }),
                "finished");
      std::pair<char const*, std::function<void()>> const operations[] = {
          {"ToJson", [&] { ToJson(value); }},
          {"FromJson", [&] { FromJson(json); }},
          {"ToXml", [&] { ToXml(value); }},
          {"FromXml", [&] { FromXml(xml); }},
          {"ToBinary", [&] { ToBinary(value); }},
          {"FromBinary", [&] { FromBinary(binary); }},
          {"Copy", [&] { Object::Copy(*value); }},
          {"EqualTo", [&] { static_cast<void>(value->EqualTo(*value)); }},
          {"ToTemplateData", [&] { ToTemplateData(value); }},
          {"Render", [&] { Render("{{#next}}.{{/next}}", value); }},
      };
      for (std::size_t stackSize : {128 << 10, 256 << 10}) {
        for (auto const& [name, operation] : operations) {
          std::string const outcome = RunOnStack(stackSize, operation);
          EXPECT_TRUE(outcome == "finished" || (depth > 3 && outcome == "refused"))
              << name << " at depth " << depth << " on " << (stackSize >> 10)
              << " KiB: " << outcome;
        }
      }
    }
  }
  SetNestingLimit(DefaultNestingLimit);
}

}  // namespace
