// ToJson, FromJson, ToBinary and FromBinary against the archive path they
// must match: the same bytes (in both JSON layouts), the same values and the
// same errors. The fuzzers hold them to it on random input; the documents
// here are those random input rarely reaches.
#include "serialize/box.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <typeinfo>
#include <vector>

namespace {

using namespace ryx::object;
using test::Bytes;
using test::Id;

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
  // Enough entries that the iteration order depends on how the table grew.
  Dictionary<Object>::Properties many;
  for (int key = 0; key != 40; ++key) {
    many.emplace(std::to_string(key), std::make_shared<Int32>(key));
  }
  std::vector<std::shared_ptr<Object const>> values = test::ExtremePrimitives();
  values.insert(
      values.end(),
      {nullptr, test::EveryKindInContainers(),
       std::make_shared<Double>(std::numeric_limits<double>::quiet_NaN()),
       std::make_shared<String>(std::string("\0\x1f\"\\\x7f\xff", 6)),
       std::make_shared<Dictionary<Object>>(many),
       // A type of the tests' own, at the root and inside containers.
       test::MakeBoxes(2),
       std::make_shared<Array<Object>>(Array<Object>::Objects{
           std::make_shared<Int32>(1), std::const_pointer_cast<Object>(test::MakeBoxes(1))})});
  for (auto const& value : values) {
    for (JsonLayout const layout : {JsonLayout::Indented, JsonLayout::Compact}) {
      std::string const text = ToJsonThroughArchive(value, layout);
      EXPECT_EQ(ToJson(value, layout), text);
      ExpectSameOutcome(text);
    }
    std::string const bytes = ToBinaryThroughArchive(value);
    EXPECT_EQ(ToBinary(value), bytes);
    ExpectSameBinaryOutcome(bytes);
  }
}

// Members out of order or unknown, strings cut at a NUL, numbers the reads
// convert or refuse, types no one registered, and nesting at the limit.
TEST_F(DirectPaths, ReadWhatTheyLeaveToTheArchiveAsTheArchiveDoes) {
  using test::Valued;
  std::string const schema = R"("required":{"type":0,"child_types":[]})";
  std::vector<std::string> documents = {
      R"({"value":9,"typename":"ryx.object.Int32"})",
      R"({"typename":"ryx.object.Int32","other":1,"value":9})",
      R"({"typename":"ryx.object.Array","required":{"child_types":[],"type":0},"objects":[]})",
      R"({"typename":"ryx.object.Dictionary","properties":[{"value":{"typename":""},"key":"k"}],)" +
          schema + "}",
      Valued("ryx.object.String", R"("x\u0000y")"),
      R"({"typename":"ryx.object.Int32\u0000tail","value":1})",
      R"({"typename\u0000":"ryx.object.Int32","value\u0000":1})",
      R"({"typename":"ryx.object.Dictionary","properties":[{"key":"a\u0000b","value":)"
      R"({"typename":"ryx.object.Int32","value":1}},{"key":"a","value":{"typename":""}}],)" +
          schema + "}",
      std::string(R"({"typename":"ryx.object.Int32","value":1})") + '\0' + "junk",
      Valued("ryx.object.Int8", "300"), Valued("ryx.object.Int16", "-2147483648"),
      Valued("ryx.object.UInt32", "4294967296"), Valued("ryx.object.Int64", "9223372036854775808"),
      Valued("ryx.object.UInt64", "18446744073709551616"),
      Valued("ryx.object.Double", "18446744073709551615"),
      R"({"typename":"ryx.object.Pointer","type":4294967295})",
      R"({"typename":"ryx.object.Array","required":{"type":1.5,"child_types":[]},"objects":[]})",
      R"({"typename":"ryx.object.Array",)" + schema + R"(,"objects":[)"
      R"({"typename":"no.such.Type","x":[{"y":[1,{}]}],"z":null},{"typename":""}]})",
  };
  // One level more than the limit lets through.
  std::string nested = R"({"typename":""})";
  for (std::size_t level = 0; level != DefaultNestingLimit; ++level) {
    nested = R"({"typename":"ryx.object.Array",)" + schema + R"(,"objects":[)" + nested + "]}";
  }
  documents.push_back(nested);
  for (std::string const& document : documents) {
    ExpectSameOutcome(document);
  }
  SetNestingLimit(2);
  ExpectSameOutcome(R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[)"
                    R"({"type":0,"child_types":[{"type":0,"child_types":[]}]}]},"objects":[]})");
  ExpectSameBinaryOutcome(test::Little + Id("ryx.object.Array") + Bytes(std::uint32_t{0}) +
                          Bytes(std::uint64_t{1}) + Bytes(std::uint32_t{0}) +
                          Bytes(std::uint64_t{1}) + Bytes(std::uint32_t{0}) +
                          Bytes(std::uint64_t{0}) + Bytes(std::uint64_t{0}));
}

// The direct readers and writers remember the types they met last in eight
// slots by id (id % 8) and, for the text form, eight by name (length plus
// last character, % 8). Many of the library's types share a slot: by id,
// Int8, UInt8, Double, UInt32 and Float, or Bool, Int32 and Int64; by name,
// Int8 and UInt16, or Enum, Float, Int64 and Pointer. Each type follows each
// other in a document of its own, since a wrong answer that the reader cannot
// parse sends the whole document to the archive, which would hide the rest.
TEST_F(DirectPaths, TellApartTypesThatShareAMemoSlot) {
  std::vector<ryx::hash::MurmurThree32> ids;
  {
    // The map holds the registry's lock while it lives.
    auto const map = registry::Get().GetMap();
    for (auto const& [id, info] : *map) {
      if (std::string(info.GetTypeName()).rfind("ryx.object.", 0) == 0) {
        ids.push_back(id);
      }
    }
  }
  ASSERT_EQ(ids.size(), 17u);
  for (auto const& first : ids) {
    for (auto const& second : ids) {
      Array<Object>::Objects const pair{Object::Make(first), Object::Make(second)};
      auto const value = std::make_shared<Array<Object>>(pair);
      std::string const json = ToJson(value, JsonLayout::Compact);
      std::string const binary = ToBinary(value);
      ASSERT_EQ(json, ToJsonThroughArchive(value, JsonLayout::Compact));
      ASSERT_EQ(binary, ToBinaryThroughArchive(value));
      for (std::shared_ptr<Object> const& loaded : {FromJson(json), FromBinary(binary)}) {
        ASSERT_TRUE(loaded && loaded->Is<Array<Object>>());
        auto const& elements = loaded->As<Array<Object>>().GetObjects();
        ASSERT_TRUE(elements.size() == 2 && elements[0] && elements[1]);
        ASSERT_TRUE(elements[0]->GetType() == first && elements[1]->GetType() == second)
            << Object::TypeName(first) << " then " << Object::TypeName(second) << " read as "
            << Object::TypeName(elements[0]->GetType()) << " then "
            << Object::TypeName(elements[1]->GetType());
      }
    }
  }
}

}  // namespace
