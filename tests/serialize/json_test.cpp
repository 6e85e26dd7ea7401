#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <sstream>
#include <string>

namespace {

using namespace ryx::object;

// The document cereal's JSON archive writes for {"typename": name, "value": value}.
std::string Document(std::string const& typeName, std::string const& value) {
  return "{\n    \"typename\": \"" + typeName + "\",\n    \"value\": " + value + "\n}";
}

std::string CheckOf(std::string const& document) {
  try {
    FromJson(document);
  } catch (cereal::archive::JsonParseError const& error) {
    return error.GetCheck();
  }
  return "no error";
}

TEST(JsonForm, WritesEveryPrimitiveAsItsTypeNameAndValue) {
  EXPECT_EQ(ToJson(std::make_shared<Bool>(true)), Document("ryx.object.Bool", "true"));
  EXPECT_EQ(ToJson(std::make_shared<Int8>(-5)), Document("ryx.object.Int8", "-5"));
  EXPECT_EQ(ToJson(std::make_shared<Int16>(-300)), Document("ryx.object.Int16", "-300"));
  EXPECT_EQ(ToJson(std::make_shared<Int32>(7)), Document("ryx.object.Int32", "7"));
  EXPECT_EQ(ToJson(std::make_shared<Int64>(std::numeric_limits<long>::min())),
            Document("ryx.object.Int64", "-9223372036854775808"));
  EXPECT_EQ(ToJson(std::make_shared<UInt8>(255)), Document("ryx.object.UInt8", "255"));
  EXPECT_EQ(ToJson(std::make_shared<UInt16>(65535)), Document("ryx.object.UInt16", "65535"));
  EXPECT_EQ(ToJson(std::make_shared<UInt32>(4294967295u)),
            Document("ryx.object.UInt32", "4294967295"));
  EXPECT_EQ(ToJson(std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max())),
            Document("ryx.object.UInt64", "18446744073709551615"));
  EXPECT_EQ(ToJson(std::make_shared<Float>(0.5f)), Document("ryx.object.Float", "0.5"));
  EXPECT_EQ(ToJson(std::make_shared<Double>(0.1)), Document("ryx.object.Double", "0.1"));
  EXPECT_EQ(ToJson(std::make_shared<String>("a\"b")), Document("ryx.object.String", "\"a\\\"b\""));
}

TEST(JsonForm, WritesANullValueAsAnEmptyTypeName) {
  EXPECT_EQ(ToJson(nullptr), "{\n    \"typename\": \"\"\n}");
  EXPECT_EQ(FromJson(ToJson(nullptr)), nullptr);
}

TEST(JsonForm, EscapesNulButLoadsTheStringCutBeforeIt) {
  std::string const text = ToJson(std::make_shared<String>(std::string("ab\0c", 4)));
  EXPECT_NE(text.find("\"ab\\u0000c\""), std::string::npos) << text;
  EXPECT_EQ(FromJson(text)->As<String>().Get(), "ab");
}

TEST(JsonForm, RoundTripsExtremeValues) {
  std::shared_ptr<Object const> const values[] = {
      std::make_shared<Int64>(std::numeric_limits<long>::min()),
      std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max()),
      std::make_shared<Double>(1e-300),
      std::make_shared<Float>(3.4e38f),
      std::make_shared<String>("line\nbreak \xc3\xa9"),
      std::make_shared<Bool>(false),
  };
  for (auto const& value : values) {
    auto const loaded = FromJson(ToJson(value));
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(loaded->EqualTo(*value)) << ToJson(value);
    EXPECT_FALSE(loaded->GetOptions().Test(Option::deserializing));
  }
}

TEST(JsonForm, NarrowsIntegersToTheirWidthWithoutARangeCheck) {
  EXPECT_EQ(FromJson(R"({"typename":"ryx.object.Int8","value":300})")->As<Int8>().Get(), 44);
  EXPECT_EQ(FromJson(R"({"typename":"ryx.object.Double","value":5})")->As<Double>().Get(), 5.0);
  EXPECT_EQ(FromJson(R"({"typename":"ryx.object.Float","value":0.1})")->As<Float>().Get(),
            static_cast<float>(0.1));
}

// The texts are the assertion expressions of the rapidjson the archive uses.
TEST(JsonForm, ReportsTheFailedCheckOfAValueOfTheWrongKind) {
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.Int8","value":2147483648})"),
            "data_.f.flags & kIntFlag");
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.UInt8","value":-1})"), "data_.f.flags & kUintFlag");
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.Int64","value":1e30})"),
            "data_.f.flags & kInt64Flag");
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.UInt64","value":-1})"),
            "data_.f.flags & kUint64Flag");
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.Double","value":"1"})"), "IsNumber()");
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.String","value":1})"), "IsString()");
  EXPECT_EQ(CheckOf(R"({"typename":"ryx.object.Bool","value":1})"), "IsBool()");
  EXPECT_EQ(CheckOf(R"({"typename":7})"), "IsString()");
  EXPECT_EQ(CheckOf("not json"), "IsObject()");
}

TEST(JsonForm, FindsMembersByNameButTakesTheFirstAsTheTypeRecord) {
  EXPECT_EQ(FromJson(R"({"typename":"ryx.object.Int32","other":1,"value":9})")->As<Int32>().Get(),
            9);
  // Whatever its name, the first member names the type.
  EXPECT_EQ(FromJson(R"({"name":"ryx.object.Int32","value":9})")->As<Int32>().Get(), 9);
  EXPECT_EQ(FromJson(R"({"typename":"no.such.Type","value":9})"), nullptr);
}

TEST(JsonForm, RefusesMissingMembersAndEmptyNodes) {
  EXPECT_THROW(FromJson(R"({"typename":"ryx.object.Int32"})"), cereal::Exception);
  EXPECT_THROW(FromJson("{}"), cereal::Exception);
  EXPECT_THROW(FromJson(""), cereal::Exception);
}

TEST(JsonForm, RefusesNumbersThatTheNumberParserWouldMisread) {
  std::string const misread[] = {"0e-300",
                                 "-0e30",
                                 "0.00000000000000000000000",
                                 "0.0e-23",
                                 "0." + std::string(400, '0') + "1",
                                 "1e-331",
                                 "-0.01e-330"};
  for (std::string const& zero : misread) {
    EXPECT_THROW(FromJson(R"({"typename":"ryx.object.Double","value":)" + zero + "}"),
                 cereal::archive::JsonParseError)
        << zero;
  }
  std::string const read[] = {"0.0",
                              "-0.0",
                              "0e22",
                              "0.0000000000000000000000",
                              "1e-300",
                              "4.9406564584124654e-324",
                              "1.7976931348623157e308"};
  for (std::string const& number : read) {
    EXPECT_NO_THROW(FromJson(R"({"typename":"ryx.object.Double","value":)" + number + "}"))
        << number;
  }
  // Inside strings digits are text.
  EXPECT_EQ(FromJson(R"({"typename":"ryx.object.String","value":"0e-300"})")->As<String>().Get(),
            "0e-300");
}

TEST(JsonForm, FailsCleanlyOnAMillionNestedArrays) {
  std::string const document = std::string(1000000, '[') + std::string(1000000, ']');
  EXPECT_THROW(FromJson(document), cereal::archive::JsonParseError);
  EXPECT_THROW(FromJson(std::string(1000000, '[')), cereal::archive::JsonParseError);
}

TEST(JsonForm, WritesAndReadsASchemaThroughItsCerealHooks) {
  Required const schema(
      Object::TypeIdOf<Int32>(),
      {Required(Object::TypeIdOf<Bool>()), Required{Required(Object::TypeIdOf<String>())}});
  std::ostringstream text;
  {
    cereal::JSONOutputArchive archive(text);
    archive(cereal::make_nvp("required", schema));
  }
  std::string const expected =
      "{\n    \"required\": {\n        \"type\": " +
      std::to_string(Object::TypeIdOf<Int32>().GetValue()) +
      ",\n        \"child_types\": [\n            {\n                \"type\": " +
      std::to_string(Object::TypeIdOf<Bool>().GetValue()) +
      ",\n                \"child_types\": []\n            },\n"
      "            {\n                \"type\": 0,\n"
      "                \"child_types\": [\n                    {\n"
      "                        \"type\": " +
      std::to_string(Object::TypeIdOf<String>().GetValue()) +
      ",\n                        \"child_types\": []\n"
      "                    }\n                ]\n            }\n        ]\n"
      "    }\n}";
  EXPECT_EQ(text.str(), expected);
  std::istringstream in(text.str());
  cereal::JSONInputArchive archive(in);
  Required loaded;
  archive(cereal::make_nvp("required", loaded));
  EXPECT_EQ(loaded, schema);
}

}  // namespace
