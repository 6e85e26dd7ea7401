#include <ryx/object/parse.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

using ryx::object::Parse;

// Runs `call` and returns the what() of the exception E it throws.
template <class E, class Call>
std::string MessageOf(Call call) {
  try {
    call();
  } catch (E const& e) {
    return e.what();
  }
  ADD_FAILURE() << "no exception of the expected type";
  return std::string();
}

TEST(ParseIntegers, SkipLeadingSpaceAndIgnoreTrailingCharacters) {
  EXPECT_EQ(Parse<int>("  42abc"), 42);
  EXPECT_EQ(Parse<int>("\t-7 "), -7);
  EXPECT_EQ(Parse<int>("+15"), 15);
  EXPECT_EQ(Parse<unsigned char>("255"), 255);
}

TEST(ParseIntegers, AcceptEveryWidthsExactBoundaries) {
  EXPECT_EQ(Parse<signed char>("-128"), -128);
  EXPECT_EQ(Parse<signed char>("127"), 127);
  EXPECT_EQ(Parse<short>("-32768"), -32768);
  EXPECT_EQ(Parse<short>("32767"), 32767);
  EXPECT_EQ(Parse<int>("-2147483648"), std::numeric_limits<int>::min());
  EXPECT_EQ(Parse<int>("2147483647"), std::numeric_limits<int>::max());
  EXPECT_EQ(Parse<long>("-9223372036854775808"), std::numeric_limits<long>::min());
  EXPECT_EQ(Parse<long>("9223372036854775807"), std::numeric_limits<long>::max());
  EXPECT_EQ(Parse<unsigned char>("0"), 0);
  EXPECT_EQ(Parse<unsigned short>("65535"), 65535);
  EXPECT_EQ(Parse<unsigned int>("4294967295"), std::numeric_limits<unsigned int>::max());
  EXPECT_EQ(Parse<unsigned long>("18446744073709551615"),
            std::numeric_limits<unsigned long>::max());
}

TEST(ParseIntegers, RejectOneBeyondEachNarrowBoundaryWithTheRange) {
  auto const signedRange = [](auto parse, char const* text) {
    return MessageOf<std::out_of_range>([&] { parse(text); });
  };
  EXPECT_EQ(signedRange(Parse<signed char>, "-129"),
            "The parsed value '-129' was out of range of the integer type: -128 to 127");
  EXPECT_EQ(signedRange(Parse<signed char>, "128"),
            "The parsed value '128' was out of range of the integer type: -128 to 127");
  EXPECT_EQ(signedRange(Parse<short>, "32768"),
            "The parsed value '32768' was out of range of the integer type: -32768 to 32767");
  EXPECT_EQ(signedRange(Parse<short>, "-32769"),
            "The parsed value '-32769' was out of range of the integer type: -32768 to 32767");
  EXPECT_EQ(signedRange(Parse<int>, "2147483648"),
            "The parsed value '2147483648' was out of range of the integer type: -2147483648 to "
            "2147483647");
  EXPECT_EQ(signedRange(Parse<int>, "-2147483649"),
            "The parsed value '-2147483649' was out of range of the integer type: -2147483648 to "
            "2147483647");
  EXPECT_EQ(signedRange(Parse<unsigned char>, "300"),
            "The parsed value '300' was out of range of the integer type: 0 to 255");
  EXPECT_EQ(signedRange(Parse<unsigned char>, "256"),
            "The parsed value '256' was out of range of the integer type: 0 to 255");
  EXPECT_EQ(signedRange(Parse<unsigned short>, "65536"),
            "The parsed value '65536' was out of range of the integer type: 0 to 65535");
  EXPECT_EQ(signedRange(Parse<unsigned int>, "4294967296"),
            "The parsed value '4294967296' was out of range of the integer type: 0 to 4294967295");
}

TEST(ParseIntegers, UnsignedMinusWrapsBeforeTheRangeCheck) {
  EXPECT_EQ(MessageOf<std::out_of_range>([] { Parse<unsigned short>("-1"); }),
            "The parsed value '18446744073709551615' was out of range of the integer type: 0 to "
            "65535");
  EXPECT_EQ(Parse<unsigned long>("-1"), std::numeric_limits<unsigned long>::max());
  EXPECT_EQ(Parse<unsigned char>("-0"), 0);
}

TEST(ParseIntegers, ReportTextThatHoldsNoNumberOrTooBigANumberAsInvalid) {
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<int>("abc"); }),
            "Failed to parse the string into a signed integer: abc");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<short>(""); }),
            "Failed to parse the string into a signed integer: ");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<unsigned int>("x5"); }),
            "Failed to parse the string into an unsigned integer: x5");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<long>("9223372036854775808"); }),
            "The string was out of the range of a signed integer: 9223372036854775808");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<signed char>("-9223372036854775809"); }),
            "The string was out of the range of a signed integer: -9223372036854775809");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<unsigned long>("18446744073709551616"); }),
            "The string was out of the range of an unsigned integer: 18446744073709551616");
}

TEST(ParseFloatingPoint, FollowsTheStandardConversions) {
  EXPECT_FLOAT_EQ(Parse<float>(" 1.5e3x"), 1500.0f);
  EXPECT_DOUBLE_EQ(Parse<double>("0x10"), 16.0);
  EXPECT_TRUE(std::isinf(Parse<double>("-inf")));
  EXPECT_TRUE(std::isnan(Parse<float>("nan")));
}

TEST(ParseFloatingPoint, ReportsFailuresWithTheirOwnTexts) {
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<float>("pi"); }),
            "Failed to parse the string into a floating point number: pi");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<float>("1e39"); }),
            "The string was out of the range of a floating pointer number: 1e39");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<double>("."); }),
            "Failed to parse the string into a double-precision floating point number: .");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<double>("1e999"); }),
            "The string was out of the range of a double-precision floating pointer number: 1e999");
}

TEST(ParseBool, AcceptsTheFourWordsAtTheStartAfterWhiteSpace) {
  EXPECT_TRUE(Parse<bool>("\ttrue"));
  EXPECT_TRUE(Parse<bool>("1"));
  EXPECT_TRUE(Parse<bool>("truex"));
  EXPECT_TRUE(Parse<bool>(" \r\n\f\v10"));
  EXPECT_FALSE(Parse<bool>("false"));
  EXPECT_FALSE(Parse<bool>("0"));
  EXPECT_FALSE(Parse<bool>("0.5"));
}

TEST(ParseBool, RejectsOtherTextQuotingItWhole) {
  for (std::string const text : {"True", "yes", "", "   ", " 2", "t"}) {
    EXPECT_EQ(MessageOf<std::invalid_argument>([&] { Parse<bool>(text); }),
              "Failed to parse the string into a boolean value: " + text);
  }
}

}  // namespace
