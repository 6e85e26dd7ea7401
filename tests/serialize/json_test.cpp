// What the JSON reader accepts and refuses.
#include "serialize/box.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

namespace {

using namespace ryx::object;
using test::Valued;
using ryx::object::testing::MakeBool;
using ryx::object::testing::MakeInt;

// What FromJson makes of a document: the value, written compact, or the
// failed check it is refused with.
std::string Read(std::string const& document) {
  try {
    return ToJson(FromJson(document), JsonLayout::Compact);
  } catch (cereal::archive::JsonParseError const& error) {
    return error.GetCheck();
  }
}

// Integers narrow to their width without a range check; members are found by
// name, but the first is taken as the type record. The checks are the
// assertion expressions of the rapidjson the archive uses; cereal enters
// every node as an object first.
TEST(JsonForm, ReadsADocumentOrReportsTheCheckItFails) {
  std::pair<std::string, std::string> const cases[] = {
      {Valued("ryx.object.Int8", "300"), Valued("ryx.object.Int8", "44")},
      {Valued("ryx.object.Double", "5"), Valued("ryx.object.Double", "5.0")},
      {Valued("ryx.object.Float", "0.1"), Valued("ryx.object.Float", "0.10000000149011612")},
      {R"({"typename":"ryx.object.Int32","other":1,"value":9})", Valued("ryx.object.Int32", "9")},
      {R"({"name":"ryx.object.Int32","value":9})", Valued("ryx.object.Int32", "9")},
      {Valued("no.such.Type", "9"), R"({"typename":""})"},
      {Valued("ryx.object.Int8", "2147483648"), "data_.f.flags & kIntFlag"},
      {Valued("ryx.object.UInt8", "-1"), "data_.f.flags & kUintFlag"},
      {Valued("ryx.object.Int64", "1e30"), "data_.f.flags & kInt64Flag"},
      {Valued("ryx.object.UInt64", "-1"), "data_.f.flags & kUint64Flag"},
      {Valued("ryx.object.Double", R"("1")"), "IsNumber()"},
      {Valued("ryx.object.String", "1"), "IsString()"},
      {Valued("ryx.object.Bool", "1"), "IsBool()"},
      {R"({"typename":"ryx.object.Enum","type":-1,"value":0})", "data_.f.flags & kUintFlag"},
      {R"({"typename":7})", "IsString()"},
      {"not json", "IsObject()"},
      {R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":5})",
       "IsObject()"},
  };
  for (auto const& [document, outcome] : cases) {
    EXPECT_EQ(Read(document), outcome) << document;
  }
}

TEST(JsonForm, RefusesMissingMembersEmptyNodesAndAMillionNestedArrays) {
  std::string const opened(1000000, '[');
  for (std::string const& document : {std::string(R"({"typename":"ryx.object.Int32"})"),
                                      std::string("{}"), std::string(), opened,
                                      opened + std::string(1000000, ']')}) {
    EXPECT_THROW(FromJson(document), cereal::Exception) << document.substr(0, 40);
  }
}

TEST(JsonForm, RefusesNumbersThatTheNumberParserWouldMisread) {
  for (std::string const& misread :
       {std::string("0e-300"), std::string("-0e30"), std::string("0.00000000000000000000000"),
        std::string("0.0e-23"), "0." + std::string(400, '0') + "1", std::string("1e-331"),
        std::string("-0.01e-330")}) {
    EXPECT_THROW(FromJson(Valued("ryx.object.Double", misread)), cereal::archive::JsonParseError)
        << misread;
  }
  for (char const* read : {"0.0", "-0.0", "0e22", "0.0000000000000000000000", "1e-300", "1e-330", "100e-330",
                           "4.9406564584124654e-324", "1.7976931348623157e308"}) {
    EXPECT_NO_THROW(FromJson(Valued("ryx.object.Double", read))) << read;
  }
  // Inside strings digits are text.
  EXPECT_EQ(Read(Valued("ryx.object.String", R"("0e-300")")),
            Valued("ryx.object.String", R"("0e-300")"));
}

// The line and column of `offset` in `text`, counted from 1.
std::pair<std::size_t, std::size_t> LineAndColumn(std::string const& text, std::size_t offset) {
  std::size_t const lineStart = text.rfind('\n', offset - 1);
  std::size_t const line = 1 + static_cast<std::size_t>(
                                   std::count(text.begin(), text.begin() + offset, '\n'));
  return {line, lineStart == std::string::npos ? offset + 1 : offset - lineStart};
}

// A mistake planted in one value of documents of several shapes, in both
// layouts, is reported at that value, with the message unchanged: the direct
// reader places the member at fault, the archive path the value's node.
TEST(JsonForm, AFailedLoadSaysWhereTheValueAtFaultIs) {
  using Objects = Array<Object>::Objects;
  using Properties = Dictionary<Object>::Properties;
  auto const marked = [] { return std::make_shared<Int32>(424242); };
  std::pair<std::shared_ptr<Object>, std::string> const shapes[] = {
      {marked(), ""},
      {std::make_shared<Array<Object>>(Objects{MakeInt(1), MakeInt(2), marked()}), "/2"},
      {std::make_shared<Dictionary<Object>>(Properties{
           {"a/b", std::make_shared<Array<Object>>(Objects{MakeBool(true), marked()})},
           {"other", test::Example()}}),
       "/a~1b/1"},
      {std::make_shared<Array<Object>>(Objects{test::Example(),
           std::make_shared<Dictionary<Object>>(Properties{{"k", marked()}})}),
       "/1/k"},
  };
  for (auto const& [value, path] : shapes) {
    for (JsonLayout const layout : {JsonLayout::Indented, JsonLayout::Compact}) {
      std::string document = ToJson(value, layout);
      std::size_t const offset = document.find("424242");
      document.replace(offset, 6, "\"x\"");
      SCOPED_TRACE(document);
      try {
        FromJson(document);
        ADD_FAILURE() << "loaded";
      } catch (cereal::archive::JsonParseError const& error) {
        EXPECT_STREQ(error.what(), "JSON parse error: data_.f.flags & kIntFlag");
        Location const* const location = FindLocation(error);
        ASSERT_NE(location, nullptr);
        EXPECT_EQ(location->path, path);
        EXPECT_TRUE(location->hasOffset);
        EXPECT_EQ(location->offset, offset);
        EXPECT_EQ(std::make_pair(location->line, location->column),
                  LineAndColumn(document, offset));
      }
      // The archive knows only the values: the value's node is found by its
      // path.
      try {
        FromJsonThroughArchive(document);
        ADD_FAILURE() << "loaded";
      } catch (cereal::archive::JsonParseError const& error) {
        ASSERT_NE(FindLocation(error), nullptr);
        EXPECT_EQ(FindLocation(error)->path, path);
        EXPECT_EQ(FindLocation(error)->offset, document.rfind('{', offset));
      }
    }
  }
}

// Both readers find where text stops being JSON; a misread number and a
// missing member are placed too.
TEST(JsonForm, AFailedLoadOfBrokenTextSaysWhereItBreaks) {
  std::string const document = ToJson(test::Example());
  std::string const cut = document.substr(0, document.size() - 1);
  for (auto read : {FromJson, FromJsonThroughArchive}) {
    try {
      read(cut);
      ADD_FAILURE() << "loaded";
    } catch (cereal::archive::JsonParseError const& error) {
      EXPECT_STREQ(error.what(), "JSON parse error: IsObject()");
      ASSERT_NE(FindLocation(error), nullptr);
      EXPECT_EQ(FindLocation(error)->offset, cut.size());
    }
  }
  std::string const misread = "{\"typename\": \"ryx.object.Double\",\n \"value\": 0e-300}";
  Location const* location = nullptr;
  try {
    FromJson(misread);
  } catch (cereal::archive::JsonParseError const& error) {
    location = FindLocation(error);
    ASSERT_NE(location, nullptr);
    EXPECT_EQ(std::make_pair(location->line, location->column), std::make_pair(2ul, 11ul));
  }
  EXPECT_NE(location, nullptr);
  std::string const nested =
      R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":[)" +
      std::string(R"({"typename":"ryx.object.Int8"})") + "]}";
  try {
    FromJson(nested);
    ADD_FAILURE() << "loaded";
  } catch (cereal::Exception const& error) {
    ASSERT_NE(FindLocation(error), nullptr);
    EXPECT_EQ(FindLocation(error)->path, "/0");
    EXPECT_EQ(FindLocation(error)->offset, nested.size() - 3);
  }
  // A member the direct reader does not know leaves the document to the
  // archive, whose failure is placed at the value's node.
  std::string misspelled = ToJson(test::Example());
  std::size_t const element = misspelled.find("{", misspelled.find("\"objects\""));
  misspelled.replace(misspelled.find("\"value\"", element), 7, "\"valeu\"");
  try {
    FromJson(misspelled);
    ADD_FAILURE() << "loaded";
  } catch (cereal::Exception const& error) {
    EXPECT_STREQ(error.what(), "JSON Parsing failed - provided NVP (value) not found");
    ASSERT_NE(FindLocation(error), nullptr);
    EXPECT_EQ(FindLocation(error)->path, "/0");
    EXPECT_EQ(FindLocation(error)->offset, element);
  }
}

}  // namespace
