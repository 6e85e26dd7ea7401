#include "support.hpp"

#include <ryx/object/parse.hpp>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <typeinfo>

namespace {

using ryx::object::Parse;
using ryx::object::testing::MessageOf;

// Both bounds of T parse; one beyond either is refused naming T's range. An
// unsigned type's "-1" wraps before the check and is covered on its own.
template <class T>
void ExpectBoundsOf() {
  SCOPED_TRACE(typeid(T).name());
  long long const min = std::numeric_limits<T>::min();
  long long const max = std::numeric_limits<T>::max();
  EXPECT_EQ(Parse<T>(std::to_string(min)), min);
  EXPECT_EQ(Parse<T>(std::to_string(max)), max);
  std::string const range = std::to_string(min) + " to " + std::to_string(max);
  for (long long const beyond : {min - 1, max + 1}) {
    if (beyond >= 0 || min < 0) {
      EXPECT_EQ(MessageOf<std::out_of_range>([&] { Parse<T>(std::to_string(beyond)); }),
                "The parsed value '" + std::to_string(beyond) +
                    "' was out of range of the integer type: " + range);
    }
  }
}

TEST(ParseIntegers, AcceptEveryWidthsBoundsAndRefuseOneBeyondNamingTheRange) {
  ExpectBoundsOf<signed char>();
  ExpectBoundsOf<short>();
  ExpectBoundsOf<int>();
  ExpectBoundsOf<unsigned char>();
  ExpectBoundsOf<unsigned short>();
  ExpectBoundsOf<unsigned int>();
  EXPECT_EQ(MessageOf<std::out_of_range>([] { Parse<unsigned char>("300"); }),
            "The parsed value '300' was out of range of the integer type: 0 to 255");
  EXPECT_EQ(Parse<long>("-9223372036854775808"), std::numeric_limits<long>::min());
  EXPECT_EQ(Parse<long>("9223372036854775807"), std::numeric_limits<long>::max());
  EXPECT_EQ(Parse<unsigned long>("18446744073709551615"),
            std::numeric_limits<unsigned long>::max());
}

// Leading space is skipped and trailing characters ignored; an unsigned
// type's minus wraps before the range check.
TEST(ParseIntegers, SkipLeadingSpaceIgnoreTrailingCharactersAndWrapAnUnsignedMinus) {
  EXPECT_EQ(Parse<int>("  42abc"), 42);
  EXPECT_EQ(Parse<int>("\t-7 "), -7);
  EXPECT_EQ(Parse<int>("+15"), 15);
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

TEST(ParseFloatingPoint, FollowsTheStandardConversionsAndReportsFailuresWithTheirOwnTexts) {
  EXPECT_FLOAT_EQ(Parse<float>(" 1.5e3x"), 1500.0f);
  EXPECT_DOUBLE_EQ(Parse<double>("0x10"), 16.0);
  EXPECT_TRUE(std::isinf(Parse<double>("-inf")));
  EXPECT_TRUE(std::isnan(Parse<float>("nan")));
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<float>("pi"); }),
            "Failed to parse the string into a floating point number: pi");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<float>("1e39"); }),
            "The string was out of the range of a floating pointer number: 1e39");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<double>("."); }),
            "Failed to parse the string into a double-precision floating point number: .");
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { Parse<double>("1e999"); }),
            "The string was out of the range of a double-precision floating pointer number: 1e999");
}

TEST(ParseBool, AcceptsTheFourWordsAtTheStartAfterWhiteSpaceAndRejectsOtherTextQuotingItWhole) {
  for (char const* text : {"\ttrue", "1", "truex", " \r\n\f\v10"}) {
    EXPECT_TRUE(Parse<bool>(text)) << text;
  }
  for (char const* text : {"false", "0", "0.5"}) {
    EXPECT_FALSE(Parse<bool>(text)) << text;
  }
  for (std::string const text : {"True", "yes", "", "   ", " 2", "t"}) {
    EXPECT_EQ(MessageOf<std::invalid_argument>([&] { Parse<bool>(text); }),
              "Failed to parse the string into a boolean value: " + text);
  }
}

}  // namespace
