// The text form of schemas: printed and parsed back, and where bad text fails.
#include "support.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;

TEST(RequiredText, PrintsEveryShapeAndReadsItBack) {
  auto const id = [](char const* name) { return ryx::hash::MurmurThree32::MakeData(name); };
  Required const int32(id("ryx.object.Int32"));
  Required const string(id("ryx.object.String"));
  std::pair<Required, std::string> const cases[] = {
      {Required(), "any"},
      {int32, "ryx.object.Int32"},
      {Required(id("ryx.object.Array"), {int32}), "ryx.object.Array<ryx.object.Int32>"},
      {Required({int32, string}), "any<ryx.object.Int32,ryx.object.String>"},
      {Required(id("ryx.object.Dictionary"),
                {Required(id("ryx.object.Array"), {Required({int32, string})})}),
       "ryx.object.Dictionary<ryx.object.Array<any<ryx.object.Int32,ryx.object.String>>>"},
      // A type without a registered name is its id.
      {Required(ryx::hash::MurmurThree32(0xfeu), {int32}), "0x000000fe<ryx.object.Int32>"},
  };
  for (auto const& [schema, text] : cases) {
    EXPECT_EQ(FormatRequired(schema), text);
    EXPECT_EQ(ParseRequired(text), schema) << text;
  }
  // The library's own types may go without their prefix, and blanks between
  // the parts do not matter.
  EXPECT_EQ(ParseRequired(" Array < any<Int32, ryx.object.String> >\t"),
            ParseRequired("ryx.object.Array<any<ryx.object.Int32,ryx.object.String>>"));
  EXPECT_EQ(ParseRequired("0xFE"), Required(ryx::hash::MurmurThree32(0xfeu)));
}

TEST(RequiredText, BadTextIsRefusedNamingTheCharacterAtFault) {
  std::pair<char const*, std::string> const cases[] = {
      {"", "at character 1 of \"\": expected a type"},
      {"Array<Int32", "at character 12 of \"Array<Int32\": expected ',' or '>'"},
      {"Array<Int32 x>", "at character 13 of \"Array<Int32 x>\": expected ',' or '>'"},
      {"Array<>", "at character 7 of \"Array<>\": expected a type"},
      {"Int33", "at character 1 of \"Int33\": 'Int33' is no type of the library"},
      {"Array<ryx.object.Int33>",
       "at character 7 of \"Array<ryx.object.Int33>\": 'ryx.object.Int33' is no type of the "
       "library"},
      {"my.app.Missing", "at character 1 of \"my.app.Missing\": 'my.app.Missing' is not a "
                         "registered type"},
      {"Array<any>", "at character 7 of \"Array<any>\": a child type cannot be 'any' alone"},
      {"0x0", "at character 1 of \"0x0\": the type id 0 is the null type"},
      {"0x123456789", "at character 1 of \"0x123456789\": a type id has at most 8"},
      {"Int32>", "at character 6 of \"Int32>\": expected the end of the schema"},
  };
  for (auto const& [text, message] : cases) {
    std::string const what = MessageOf<std::invalid_argument>([&] { ParseRequired(text); });
    EXPECT_EQ(what.rfind("Bad schema " + message, 0), 0u) << what;
  }
}

TEST(RequiredText, SchemasDeeperThanTheLimitAreRefused) {
  std::size_t const levels = GetNestingLimit() + 1;
  std::string text;
  for (std::size_t level = 1; level != levels; ++level) {
    text += "Array<";
  }
  text += "Int32" + std::string(levels - 1, '>');
  EXPECT_THROW(ParseRequired(text), NestingLimitError);
}

}  // namespace
