// What the JSON reader accepts and refuses.
#include "serialize/box.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ryx::object;
using test::CheckOf;
using test::Valued;

TEST(JsonForm, NarrowsIntegersToTheirWidthWithoutARangeCheck) {
  EXPECT_EQ(FromJson(Valued("ryx.object.Int8", "300"))->As<Int8>().Get(), 44);
  EXPECT_EQ(FromJson(Valued("ryx.object.Double", "5"))->As<Double>().Get(), 5.0);
  EXPECT_EQ(FromJson(Valued("ryx.object.Float", "0.1"))->As<Float>().Get(), static_cast<float>(0.1));
}

// The texts are the assertion expressions of the rapidjson the archive uses.
TEST(JsonForm, ReportsTheFailedCheckOfAValueOfTheWrongKind) {
  std::pair<std::string, char const*> const cases[] = {
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
      // cereal enters every node as an object first.
      {R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":5})",
       "IsObject()"},
  };
  for (auto const& [document, check] : cases) {
    EXPECT_EQ(CheckOf(document), check) << document;
  }
}

TEST(JsonForm, FindsMembersByNameButTakesTheFirstAsTheTypeRecord) {
  EXPECT_EQ(FromJson(R"({"typename":"ryx.object.Int32","other":1,"value":9})")->As<Int32>().Get(),
            9);
  EXPECT_EQ(FromJson(R"({"name":"ryx.object.Int32","value":9})")->As<Int32>().Get(), 9);
  EXPECT_EQ(FromJson(Valued("no.such.Type", "9")), nullptr);
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
  for (char const* read : {"0.0", "-0.0", "0e22", "0.0000000000000000000000", "1e-300", "1e-330",
                           "4.9406564584124654e-324", "1.7976931348623157e308"}) {
    EXPECT_NO_THROW(FromJson(Valued("ryx.object.Double", read))) << read;
  }
  // Inside strings digits are text.
  EXPECT_EQ(FromJson(Valued("ryx.object.String", R"("0e-300")"))->As<String>().Get(), "0e-300");
}

}  // namespace
