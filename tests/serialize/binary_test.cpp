#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;

// Little-endian bytes of an integer of N bytes.
template <class T>
std::string Bytes(T value) {
  std::string bytes;
  for (std::size_t i = 0; i != sizeof(T); ++i) {
    bytes += static_cast<char>((static_cast<std::uint64_t>(value) >> (8 * i)) & 0xFF);
  }
  return bytes;
}

std::string Id(char const* typeName) {
  return Bytes(ryx::hash::MurmurThree32::MakeData(typeName).GetValue());
}

std::string const Little = "\x01";

TEST(BinaryForm, WritesTheEndiannessByteTheTypeIdAndFixedWidthFields) {
  EXPECT_EQ(ToBinary(std::make_shared<Bool>(true)), Little + Id("ryx.object.Bool") + '\x01');
  EXPECT_EQ(ToBinary(std::make_shared<Int8>(-1)), Little + Id("ryx.object.Int8") + '\xFF');
  EXPECT_EQ(ToBinary(std::make_shared<Int16>(-2)),
            Little + Id("ryx.object.Int16") + Bytes<std::int16_t>(-2));
  EXPECT_EQ(ToBinary(std::make_shared<Int32>(7)),
            Little + Id("ryx.object.Int32") + Bytes<std::int32_t>(7));
  EXPECT_EQ(ToBinary(std::make_shared<UInt64>(0x0102030405060708ul)),
            Little + Id("ryx.object.UInt64") + "\x08\x07\x06\x05\x04\x03\x02\x01");
  EXPECT_EQ(ToBinary(std::make_shared<Float>(1.0f)),
            Little + Id("ryx.object.Float") + Bytes<std::uint32_t>(0x3F800000u));
  EXPECT_EQ(ToBinary(std::make_shared<Double>(2.0)),
            Little + Id("ryx.object.Double") + Bytes<std::uint64_t>(0x4000000000000000ull));
  EXPECT_EQ(ToBinary(std::make_shared<String>("abc")),
            Little + Id("ryx.object.String") + Bytes<std::uint64_t>(3) + "abc");
  EXPECT_EQ(ToBinary(std::make_shared<String>("")),
            Little + Id("ryx.object.String") + std::string(8, '\0'));
}

TEST(BinaryForm, WritesANullValueAsTypeIdZero) {
  EXPECT_EQ(ToBinary(nullptr), Little + std::string(4, '\0'));
  EXPECT_EQ(FromBinary(ToBinary(nullptr)), nullptr);
}

TEST(BinaryForm, RoundTripsPrimitivesIncludingBytesATextFormWouldCut) {
  std::shared_ptr<Object const> const values[] = {
      std::make_shared<String>(std::string("a\0b", 3)),
      std::make_shared<Int64>(-1),
      std::make_shared<UInt8>(255),
      std::make_shared<Double>(1e-310),
      std::make_shared<Bool>(false),
  };
  for (auto const& value : values) {
    auto const loaded = FromBinary(ToBinary(value));
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(loaded->EqualTo(*value));
  }
}

TEST(BinaryForm, ReadsABigEndianStreamByReversingMultiByteFields) {
  std::string id = Id("ryx.object.Int32");
  std::string const stream = std::string(1, '\0') + std::string(id.rbegin(), id.rend()) +
                             std::string("\x00\x00\x01\x02", 4);
  EXPECT_EQ(FromBinary(stream)->As<Int32>().Get(), 0x0102);
  std::string sid = Id("ryx.object.String");
  std::string const text = std::string(1, '\0') + std::string(sid.rbegin(), sid.rend()) +
                           std::string(7, '\0') + "\x02" + "hi";
  EXPECT_EQ(FromBinary(text)->As<String>().Get(), "hi");
}

TEST(BinaryForm, RejectsABoolByteOtherThanZeroOrOne) {
  EXPECT_THROW(FromBinary(Little + Id("ryx.object.Bool") + '\x02'), std::runtime_error);
}

TEST(BinaryForm, RejectsAnUnregisteredTypeIdNamingIt) {
  try {
    FromBinary(Little + Bytes<std::uint32_t>(12345u) + "rest");
    FAIL();
  } catch (std::runtime_error const& error) {
    EXPECT_NE(std::string(error.what()).find("12345"), std::string::npos) << error.what();
  }
}

TEST(BinaryForm, RejectsAnEndiannessByteOtherThanZeroOrOne) {
  EXPECT_THROW(FromBinary("\x02" + Id("ryx.object.Bool") + '\x01'), std::runtime_error);
}

TEST(BinaryForm, ReportsAStreamCutInsideAValueWithTheBytesThatWereThere) {
  try {
    FromBinary(Little + Id("ryx.object.Int64") + "\x01\x02\x03");
    FAIL();
  } catch (cereal::Exception const& error) {
    EXPECT_STREQ(error.what(), "Failed to read 8 bytes from input stream! Read 3");
  }
  EXPECT_THROW(FromBinary(""), cereal::Exception);
  EXPECT_THROW(FromBinary(Little + "\x01\x02"), cereal::Exception);
}

TEST(BinaryForm, FailsAtOnceOnAStringClaimingHugeLength) {
  std::string const stream =
      Little + Id("ryx.object.String") + Bytes<std::uint64_t>(1ull << 60) + "abcdefg";
  ASSERT_EQ(stream.size(), 20u);
  EXPECT_THROW(FromBinary(stream), cereal::Exception);
}

TEST(BinaryForm, FailsAtOnceOnASchemaClaimingHugeChildCount) {
  std::string const stream =
      Little + Bytes<std::uint32_t>(0) + Bytes<std::uint64_t>(1ull << 60) + "abcdefg";
  std::istringstream in(stream);
  cereal::PortableBinaryInputArchive archive(in);
  Required schema(Object::TypeIdOf<Int32>());
  EXPECT_THROW(archive(schema), cereal::Exception);
  EXPECT_EQ(schema, Required(Object::TypeIdOf<Int32>()));
}

TEST(BinaryForm, WritesASchemaAsIdChildCountAndChildren) {
  std::ostringstream out;
  {
    cereal::PortableBinaryOutputArchive archive(out);
    archive(Required{Required(Object::TypeIdOf<Bool>())});
  }
  EXPECT_EQ(out.str(), Little + Bytes<std::uint32_t>(0) + Bytes<std::uint64_t>(1) +
                           Id("ryx.object.Bool") + Bytes<std::uint64_t>(0));
}

}  // namespace
