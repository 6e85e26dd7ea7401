// ToJson, FromJson, ToBinary and FromBinary against the archive path they
// must match: the same bytes (in both JSON layouts), the same values and the
// same errors.
#include "serialize/box.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <typeinfo>
#include <vector>

namespace {

using namespace ryx::object;

// What a reader makes of a document: the value as the archive saves it, or
// the error.
std::string Outcome(std::shared_ptr<Object> (*read)(std::string_view), std::string_view document) {
  try {
    return ToJsonThroughArchive(read(document));
  } catch (std::exception const& error) {
    return std::string("error ") + typeid(error).name() + ": " + error.what();
  }
}

void ExpectSameOutcome(std::string const& document) {
  EXPECT_EQ(Outcome(FromJson, document), Outcome(FromJsonThroughArchive, document)) << document;
}

// Every prefix of the stream too: a stream cut anywhere must fail alike.
void ExpectSameBinaryOutcome(std::string const& bytes) {
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    std::string_view const prefix(bytes.data(), size);
    ASSERT_EQ(Outcome(FromBinary, prefix), Outcome(FromBinaryThroughArchive, prefix))
        << size << " of " << bytes.size() << " bytes";
  }
}

class DirectPaths : public ::testing::Test {
 protected:
  void SetUp() override { test::RegisterBox(); }
  void TearDown() override { SetNestingLimit(DefaultNestingLimit); }
};

TEST_F(DirectPaths, WriteAndReadEveryValueAsTheArchiveDoes) {
  std::string everyByte;
  for (int byte = 0; byte != 256; ++byte) {
    everyByte += static_cast<char>(byte);
  }
  // Enough entries that the iteration order depends on how the table grew.
  Dictionary<Object>::Properties many;
  for (int key = 0; key != 40; ++key) {
    many.emplace(std::to_string(key), std::make_shared<Int32>(key));
  }
  double const infinity = std::numeric_limits<double>::infinity();
  std::vector<std::shared_ptr<Object const>> values = test::ExtremePrimitives();
  values.insert(
      values.end(),
      {nullptr, test::Example(), test::EveryKindInContainers(),
       std::make_shared<Double>(std::numeric_limits<double>::quiet_NaN()),
       std::make_shared<Double>(-infinity), std::make_shared<Float>(infinity),
       std::make_shared<String>(everyByte), std::make_shared<Dictionary<Object>>(many),
       // A type of the tests' own, at the root and inside containers.
       test::MakeBoxes(2),
       std::make_shared<Array<Object>>(Array<Object>::Objects{
           std::make_shared<Int32>(1), std::const_pointer_cast<Object>(test::MakeBoxes(1))})});
  for (auto const& value : values) {
    std::string const indented = ToJsonThroughArchive(value);
    std::string const compact = ToJsonThroughArchive(value, JsonLayout::Compact);
    EXPECT_EQ(ToJson(value), indented);
    EXPECT_EQ(ToJson(value, JsonLayout::Compact), compact);
    ExpectSameOutcome(indented);
    ExpectSameOutcome(compact);
    std::string const bytes = ToBinaryThroughArchive(value);
    EXPECT_EQ(ToBinary(value), bytes);
    ExpectSameBinaryOutcome(bytes);
  }
  EXPECT_EQ(ToJson(std::make_shared<Int32>(7), JsonLayout::Compact),
            R"({"typename":"ryx.object.Int32","value":7})");
}

TEST_F(DirectPaths, ReadEveryJsonDocumentAsTheArchiveDoes) {
  auto const value = [](char const* type, std::string const& json) {
    return std::string(R"({"typename":")") + type + R"(","value":)" + json + "}";
  };
  std::vector<std::string> documents = {
      // Layout and member order.
      " \t\r\n{ \"typename\" : \"ryx.object.Int32\" , \"value\" : 1 } \n",
      R"({"typename":"ryx.object.Array","objects":[],"required":{"type":0,"child_types":[]}})",
      R"({"typename":"ryx.object.Int32","other":1,"value":9})",
      R"({"typename":"ryx.object.Int32","value":1,"value":2})",
      R"({"name":"ryx.object.Int32","value":9})",
      R"({"value":9,"typename":"ryx.object.Int32"})",
      R"({"typename":"ryx.object.Enum","value":1,"type":2})",
      R"({"typename":"ryx.object.Dictionary","properties":[{"value":{"typename":""},"key":"k"}],)"
      R"("required":{"type":0,"child_types":[]}})",
      R"({"typename":"ryx.object.Array","required":{"child_types":[],"type":0},"objects":[]})",
      // Strings, keys and type names end at a NUL.
      value("ryx.object.String", R"("x\u0000y")"),
      R"({"typename":"ryx.object.Int32\u0000tail","value":1})",
      R"({"typename\u0000":"ryx.object.Int32","value\u0000":1})",
      R"({"typename":"ryx.object.Dictionary","properties":[{"key":"a\u0000b","value":)"
      R"({"typename":"ryx.object.Int32","value":1}},{"key":"a","value":{"typename":""}}],)"
      R"("required":{"type":0,"child_types":[]}})",
      std::string(R"({"typename":"ryx.object.Int32","value":1})") + '\0' + "junk",
      // Numbers of every kind against every check.
      value("ryx.object.Int8", "300"),
      value("ryx.object.Int8", "2147483648"),
      value("ryx.object.Int16", "-2147483648"),
      value("ryx.object.Int32", "-0"),
      value("ryx.object.UInt8", "-1"),
      value("ryx.object.UInt32", "4294967295"),
      value("ryx.object.UInt32", "4294967296"),
      value("ryx.object.Int64", "9223372036854775807"),
      value("ryx.object.Int64", "9223372036854775808"),
      value("ryx.object.Int64", "1e30"),
      value("ryx.object.UInt64", "18446744073709551615"),
      value("ryx.object.UInt64", "-1"),
      value("ryx.object.UInt64", "18446744073709551616"),
      value("ryx.object.Double", "5"),
      value("ryx.object.Double", "18446744073709551615"),
      value("ryx.object.Float", "-Infinity"),
      value("ryx.object.Double", "NaN"),
      value("ryx.object.Double", R"("1")"),
      value("ryx.object.Double", "0e-300"),
      value("ryx.object.Bool", "1"),
      value("ryx.object.Bool", "null"),
      value("ryx.object.String", "[]"),
      R"({"typename":"ryx.object.Enum","type":-1,"value":0})",
      R"({"typename":"ryx.object.Pointer","type":4294967295})",
      R"({"typename":"ryx.object.Array","required":{"type":1.5,"child_types":[]},"objects":[]})",
      // Types that cannot be read, and nodes that are not objects.
      R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":[)"
      R"({"typename":"no.such.Type","x":[{"y":[1,{}]}],"z":null},{"typename":""},)"
      R"({"typename":"test.serialize.Box","child":{"typename":"ryx.object.Bool","value":true}}]})",
      R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":[5]})",
      R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":{}})",
      R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":{}},"objects":[]})",
      R"(["ryx.object.Int32",5])",
      "{}",
      "",
      "not json",
      R"({"typename":"ryx.object.Int32")",
      R"({"typename":"ryx.object.Int32","value":1} x)",
  };
  std::string nested = R"({"typename":"")";
  for (std::size_t level = 1; level != DefaultNestingLimit + 2; ++level) {
    nested = R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},)"
             R"("objects":[)" +
             nested + "]}";
    if (level + 1 >= DefaultNestingLimit) {
      documents.push_back(nested);
    }
  }
  for (std::string const& document : documents) {
    ExpectSameOutcome(document);
  }
  SetNestingLimit(2);
  ExpectSameOutcome(R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[)"
                    R"({"type":0,"child_types":[{"type":0,"child_types":[]}]}]},"objects":[]})");
}

TEST_F(DirectPaths, ReadEveryBinaryStreamAsTheArchiveDoes) {
  using test::Bytes;
  using test::Id;
  std::string const int32 = Id("ryx.object.Int32");
  for (std::string const& stream : {
           std::string(1, '\0') + int32 + Bytes(std::int32_t{7}),  // the other byte order
           test::Little + Id("ryx.object.Bool") + "\x02",
           test::Little + Bytes(std::uint32_t{12345}),  // no such type
           test::Little + Id("ryx.object.Array") + Bytes(std::uint32_t{0}) +
               Bytes(std::uint64_t{0}) + Bytes(std::uint64_t{2}) + Bytes(std::uint32_t{0}) +
               Id(test::BoxName) + int32 + Bytes(std::int32_t{1}),
           test::Little + Id("ryx.object.String") + Bytes(std::uint64_t{1} << 62) + "abc",
           test::Little + int32 + Bytes(std::int32_t{7}) + "trailing bytes",
       }) {
    ExpectSameBinaryOutcome(stream);
  }
  SetNestingLimit(2);
  ExpectSameBinaryOutcome(ToBinaryThroughArchive(test::MakeBoxes(0)));
  ExpectSameBinaryOutcome(test::Little + Id("ryx.object.Array") + Bytes(std::uint32_t{0}) +
                          Bytes(std::uint64_t{1}) + Bytes(std::uint32_t{0}) +
                          Bytes(std::uint64_t{1}) + Bytes(std::uint32_t{0}) +
                          Bytes(std::uint64_t{0}) + Bytes(std::uint64_t{0}));
}

}  // namespace
