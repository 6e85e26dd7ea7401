// What the JSON reader accepts and refuses.
#include "serialize/box.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using namespace ryx::object;
using test::Valued;

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

}  // namespace
