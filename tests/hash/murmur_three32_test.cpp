#include <ryx/hash/murmur_three32.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

namespace {

using ryx::hash::MurmurThree32;

struct Vector {
  std::string input;
  std::uint32_t seed;
  std::uint32_t expected;
};

// Published MurmurHash3_x86_32 test vectors, with their own seeds: every tail
// length, several blocks, bytes above 0x7F.
Vector const PublishedVectors[] = {
    {"", 0u, 0u},
    {"", 1u, 0x514E28B7u},
    {std::string(4, '\0'), 0u, 0x2362F9DEu},
    {"aaaa", 0x9747B28Cu, 0x5A97808Au},
    {"aaa", 0x9747B28Cu, 0x283E0130u},
    {"aa", 0x9747B28Cu, 0x5D211726u},
    {"a", 0x9747B28Cu, 0x7FA09EA6u},
    {"Hello, world!", 0x9747B28Cu, 0x24884CBAu},
    {"\xcf\x80\xcf\x80\xcf\x80\xcf\x80\xcf\x80\xcf\x80\xcf\x80\xcf\x80", 0x9747B28Cu, 0xD58063C1u},
    {"The quick brown fox jumps over the lazy dog", 0x9747B28Cu, 0x2FA826CDu},
};

TEST(MurmurThree32, ComputeMatchesThePublishedVectors) {
  for (Vector const& v : PublishedVectors) {
    EXPECT_EQ(MurmurThree32::Compute(v.input.data(), v.input.size(), v.seed), v.expected)
        << "input '" << v.input << "' seed " << v.seed;
  }
}

// MakeData of a C string is computed at compile time; of a counted string at
// run time, NUL bytes included. Both use the library's seed. The value is its
// own hash (printing is checked with the values that print an id).
TEST(MurmurThree32, InlineAndCountedFormsAgreeOnTheLibrarySeed) {
  constexpr MurmurThree32 id = MurmurThree32::MakeData("ryx.object.Int32");
  static_assert(id != MurmurThree32(), "a type name never hashes to the null id here");
  EXPECT_EQ(id, MurmurThree32::MakeData(std::string("ryx.object.Int32")));
  for (char const* name : {"ryx.object.Dictionary", "a", "ab", "abc", ""}) {
    EXPECT_EQ(MurmurThree32::MakeData(name), MurmurThree32::MakeData(boost::string_view(name)));
    std::string const text(name);
    EXPECT_EQ(MurmurThree32::MakeData(text).GetValue(),
              MurmurThree32::Compute(text.data(), text.size(), 0x0AEF6901u));
  }
  EXPECT_NE(MurmurThree32::MakeData(std::string("a\0b", 3)), MurmurThree32::MakeData("a"));
  EXPECT_EQ(MurmurThree32::MakeData(static_cast<char const*>(nullptr)), MurmurThree32());
  EXPECT_EQ(std::hash<MurmurThree32>()(MurmurThree32(0xFFFFFFFFu)), 0xFFFFFFFFu);
}

}  // namespace
