// What the binary reader accepts and refuses.
#include "serialize/box.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;
using test::Bytes;
using test::Id;
using test::Little;
using ryx::object::testing::MessageOf;

std::string Reversed(std::string const& bytes) { return std::string(bytes.rbegin(), bytes.rend()); }

TEST(BinaryForm, ReadsABigEndianStreamByReversingMultiByteFields) {
  std::string const big(1, '\0');
  auto const int32 = FromBinary(big + Reversed(Id("ryx.object.Int32")) + Reversed(Bytes(0x0102)));
  EXPECT_EQ(int32->As<Int32>().Get(), 0x0102);
  auto const text = FromBinary(big + Reversed(Id("ryx.object.String")) +
                               Reversed(Bytes(std::uint64_t{2})) + "hi");
  EXPECT_EQ(text->As<String>().Get(), "hi");
}

TEST(BinaryForm, RejectsAnEndiannessOrBoolByteOtherThanZeroOrOneAndAnUnregisteredTypeId) {
  std::pair<std::string, std::string> const cases[] = {
      {"\x02" + Id("ryx.object.Bool") + '\x01',
       "Invalid endianness byte in the binary form: 2 (expected 0 or 1)"},
      {Little + Id("ryx.object.Bool") + '\x02',
       "Invalid bool byte in the binary form: 2 (expected 0 or 1)"},
      {Little + Bytes<std::uint32_t>(12345u) + "rest",
       "Cannot load the unregistered type id 12345 from the binary form: the bytes that follow "
       "cannot be read"},
  };
  for (auto const& [bytes, message] : cases) {
    EXPECT_EQ(MessageOf<std::runtime_error>([&] { FromBinary(bytes); }), message);
  }
}

// A length far beyond the stream must fail before anything is allocated for it.
TEST(BinaryForm, FailsAtOnceOnAStringOrSchemaClaimingAHugeLength) {
  std::string const huge = Bytes<std::uint64_t>(1ull << 60) + "abcdefg";
  EXPECT_THROW(FromBinary(Little + Id("ryx.object.String") + huge), cereal::Exception);
  std::istringstream in(Little + Bytes<std::uint32_t>(0) + huge);
  cereal::PortableBinaryInputArchive archive(in);
  Required schema(Object::TypeIdOf<Int32>());
  EXPECT_THROW(archive(schema), cereal::Exception);
  EXPECT_EQ(schema, Required(Object::TypeIdOf<Int32>()));
}

// The direct reader places a failure at the field it could not read, the
// archive where it stopped reading; both name the value's path. The stream
// is [Int32 7, {"name": String "abc"}]: the string's bytes start at 69.
TEST(BinaryForm, AFailedLoadSaysWhichFieldOfWhichValue) {
  std::string const bytes = ToBinary(test::Example());
  ASSERT_EQ(bytes.size(), 84u);
  std::string const cut = bytes.substr(0, 70);
  std::string unregistered = bytes;
  unregistered.replace(33, 4, Bytes<std::uint32_t>(12345u));
  struct Case {
    std::string bytes;
    std::shared_ptr<Object> (*read)(std::string_view);
    std::size_t offset;
    char const* path;
  };
  Case const cases[] = {
      {cut, FromBinary, 69, "/1/name"},
      {cut, FromBinaryThroughArchive, 70, "/1/name"},
      {unregistered, FromBinary, 33, "/1"},
      {unregistered, FromBinaryThroughArchive, 37, "/1"},
  };
  for (Case const& c : cases) {
    try {
      c.read(c.bytes);
      ADD_FAILURE() << "loaded";
    } catch (std::runtime_error const& error) {
      Location const* const location = FindLocation(error);
      ASSERT_NE(location, nullptr) << error.what();
      EXPECT_TRUE(location->hasOffset);
      EXPECT_EQ(location->line, 0u);
      EXPECT_EQ(location->offset, c.offset) << error.what();
      EXPECT_EQ(location->path, c.path) << error.what();
    }
  }
}

}  // namespace
