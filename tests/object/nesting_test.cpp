// Deeply nested values: releasing them never recurses, copies and comparisons
// stop at the nesting limit, and on threads with small stacks every recursive
// operation finishes or throws NestingLimitError, never overflows the stack.
#include "support.hpp"

#include <cstddef>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;
using ryx::object::testing::RunOnStack;

enum class Shape { Arrays, Dictionaries, Mixed };

// A chain of `depth` containers, each holding the next, the innermost an Int32.
std::shared_ptr<Object> Nest(std::size_t depth, Shape shape = Shape::Mixed) {
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

// An empty array whose schema nests `depth` levels.
std::shared_ptr<Object> NestSchema(std::size_t depth) {
  Required schema(Object::TypeIdOf<Int32>());
  for (std::size_t level = 1; level < depth; ++level) {
    std::vector<Required> children;
    children.push_back(std::move(schema));
    schema = Required(Object::TypeIdOf<Array<Object>>(), std::move(children));
  }
  return std::make_shared<Array<Object>>(std::move(schema), Array<Object>::Objects{});
}

// A release that recursed once per level would overflow 64 KiB within 5,000
// levels even with the small frames of an optimised build (a schema's are the
// smallest). Each kind of chain is needed: a container released in place
// hands its children to their own destructors, iterative for the other kind.
TEST(Nesting, ReleasingADeepChainOrSchemaNeverRecursesAndSparesASharedChild) {
  std::shared_ptr<Object> const shared = Nest(2);
  std::shared_ptr<Object> values[] = {
      Nest(20000, Shape::Arrays), Nest(20000, Shape::Dictionaries), NestSchema(20000),
      std::make_shared<Array<Object>>(Array<Object>::Objects{shared})};
  for (std::shared_ptr<Object>& value : values) {
    EXPECT_EQ(RunOnStack(64 << 10, [&] { value.reset(); }), "finished");
  }
  EXPECT_TRUE(shared->EqualTo(*Nest(2)));
}

TEST(Nesting, CopyAndCompareWorkUpToTheLimitAndRefuseToGoDeeper) {
  std::shared_ptr<Object> const atLimit = Nest(GetNestingLimit());
  std::shared_ptr<Object> const copy = Object::Copy(*atLimit);
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->EqualTo(*atLimit));
  std::string const limit = std::to_string(GetNestingLimit()) + " levels";
  for (Shape shape : {Shape::Arrays, Shape::Dictionaries}) {
    std::shared_ptr<Object> const deep = Nest(GetNestingLimit() + 1, shape);
    EXPECT_EQ(MessageOf<NestingLimitError>([&] { Object::Copy(*deep); }),
              "Values to copy are nested deeper than the nesting limit of " + limit);
    EXPECT_EQ(MessageOf<NestingLimitError>([&] { static_cast<void>(deep->EqualTo(*deep)); }),
              "Values to compare are nested deeper than the nesting limit of " + limit);
    // The failures unwound their counters: a shallow copy still works.
    EXPECT_TRUE(Object::Copy(*Nest(2, shape)));
  }
}

TEST(SmallStacks, EveryRecursiveOperationFinishesOrRefusesAtAnyDepth) {
  // Only the stack stops these depths.
  SetNestingLimit(1000000);
  for (std::size_t depth : {3, 500, 999, 5000}) {
    for (std::shared_ptr<Object> const& value : {Nest(depth), NestSchema(depth)}) {
      // Written on a thread with room for any of the depths, without
      // indentation, which would grow with the square of the depth.
      std::ostringstream json;
      std::ostringstream xml;
      std::string binary;
      std::string plain;
      EXPECT_EQ(RunOnStack(64 << 20,
                           [&] {
                             cereal::JSONOutputArchive jsonArchive(
                                 json, cereal::JSONOutputArchive::Options::NoIndent());
                             Save(jsonArchive, value);
                             cereal::XMLOutputArchive xmlArchive(
                                 xml, cereal::XMLOutputArchive::Options().indent(false));
                             Save(xmlArchive, value);
                             binary = ToBinary(value);
                             plain = ToPlainJson(value, JsonLayout::Compact);
                           }),
                "finished");
      std::pair<char const*, std::function<void()>> const operations[] = {
          {"ToJson", [&] { ToJson(value); }},
          {"FromJson", [&] { FromJson(json.str()); }},
          {"ToXml", [&] { ToXml(value); }},
          {"FromXml", [&] { FromXml(xml.str()); }},
          {"ToBinary", [&] { ToBinary(value); }},
          {"FromBinary", [&] { FromBinary(binary); }},
          {"ToPlainJson", [&] { ToPlainJson(value); }},
          // Read under the value's own schema, which nests as deep as the value.
          {"FromPlainJson", [&] { FromPlainJson(plain, value->GetRequired()); }},
          {"FormatRequired", [&] { FormatRequired(value->GetRequired()); }},
          {"Copy", [&] { Object::Copy(*value); }},
          {"EqualTo", [&] { static_cast<void>(value->EqualTo(*value)); }},
          {"ToTemplateData", [&] { ToTemplateData(value); }},
          // The renderer copies the tree again for each section it enters.
          {"Render", [&] { Render("{{#objects}}.{{/objects}}", value); }},
      };
      for (std::size_t stackSize : {128 << 10, 256 << 10}) {
        for (auto const& [name, operation] : operations) {
          std::string const outcome = RunOnStack(stackSize, operation);
          // Three levels fit any of these stacks, even with the sanitizers'
          // larger frames.
          EXPECT_TRUE(outcome == "finished" || (depth > 3 && outcome == "refused"))
              << name << " at depth " << depth << " on " << (stackSize >> 10)
              << " KiB: " << outcome;
        }
      }
    }
  }
  SetNestingLimit(DefaultNestingLimit);
}

// The walk keeps its own stack, so only the limit stops it; past the limit it
// reports the first value, as Save counts levels, and goes no deeper.
TEST(SmallStacks, FindingProblemsWalksAnyDepthAndReportsTheFirstValuePastTheLimit) {
  std::size_t const depth = 100000;
  std::shared_ptr<Object> const deep = Nest(depth);
  std::vector<Problem> problems;
  SetNestingLimit(depth + 1);
  EXPECT_EQ(RunOnStack(128 << 10, [&] { problems = FindProblems(*deep); }), "finished");
  EXPECT_EQ(problems, std::vector<Problem>{});
  SetNestingLimit(DefaultNestingLimit);
  EXPECT_EQ(RunOnStack(128 << 10, [&] { problems = FindProblems(*deep); }), "finished");
  // The containers are built from the inside, arrays at even steps.
  std::string path;
  for (std::size_t level = 0; level != DefaultNestingLimit; ++level) {
    path += (depth - 1 - level) % 2 == 0 ? "/0" : "/next";
  }
  ASSERT_EQ(problems.size(), 1u);
  EXPECT_EQ(problems[0].path, path);
  // The same value one level shallower saves; at the limit it does not.
  for (std::size_t levels : {DefaultNestingLimit - 1, DefaultNestingLimit}) {
    std::shared_ptr<Object> const value = Nest(levels);
    bool const saves = [&] {
      try {
        ToBinary(value);
        return true;
      } catch (NestingLimitError const&) {
        return false;
      }
    }();
    EXPECT_EQ(FindProblems(value).empty(), saves) << levels << " levels";
  }
}

}  // namespace
