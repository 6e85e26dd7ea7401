#include "object/serialize/detail/json_numbers.hpp"

#include <ryx/object/serialize/location.hpp>
#include <ryx/serialize/archive/json_parse_error.hpp>

#include <cstddef>
#include <utility>

#include "object/serialize/detail/locate.hpp"

namespace ryx::object::detail {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsNumberChar(char c) {
  return IsDigit(c) || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

// Counts and exponents beyond this are as bad as any other out of range.
constexpr long Cap = 1000000;
// The parser's fast path takes a zero with a decimal exponent in this range.
constexpr long FastRange = 22;
// Below 1e-330 the parser indexes its table of powers out of bounds; every
// double is above it (the least is about 4.9e-324) and above 1e330 nothing
// parses anyway.
constexpr long MagnitudeRange = 330;

long Capped(long value) { return value < Cap ? value : Cap; }

// Whether `number` (a run of number characters) is one the parser misreads.
bool IsMisread(std::string_view number) {
  std::size_t at = number.empty() || number[0] != '-' ? 0 : 1;
  long integerDigits = 0;
  long fractionDigits = 0;
  long leadingZeros = 0;
  bool nonzero = false;
  auto const digit = [&](char c) {
    nonzero |= c != '0';
    leadingZeros += nonzero ? 0 : 1;
    leadingZeros = Capped(leadingZeros);
  };
  for (; at < number.size() && IsDigit(number[at]); ++at) {
    digit(number[at]);
    integerDigits = Capped(integerDigits + 1);
  }
  if (at < number.size() && number[at] == '.') {
    for (++at; at < number.size() && IsDigit(number[at]); ++at) {
      digit(number[at]);
      fractionDigits = Capped(fractionDigits + 1);
    }
  }
  if (integerDigits + fractionDigits == 0) {
    return false;
  }
  long exponent = 0;
  if (at < number.size() && (number[at] == 'e' || number[at] == 'E')) {
    ++at;
    bool const negative = at < number.size() && number[at] == '-';
    at += at < number.size() && (number[at] == '-' || number[at] == '+') ? 1 : 0;
    for (; at < number.size() && IsDigit(number[at]); ++at) {
      exponent = Capped(exponent * 10 + (number[at] - '0'));
    }
    exponent = negative ? -exponent : exponent;
  }
  if (!nonzero) {
    long const decimalExponent = exponent - fractionDigits;
    return decimalExponent < -FastRange || decimalExponent > FastRange;
  }
  // The value is d.ddd times ten to this.
  long const magnitude = integerDigits - leadingZeros - 1 + exponent;
  return magnitude < -MagnitudeRange || magnitude > MagnitudeRange;
}

}  // namespace

void CheckJsonNumbers(std::string_view document) {
  bool inString = false;
  for (std::size_t at = 0; at < document.size(); ++at) {
    char const c = document[at];
    if (inString) {
      if (c == '\\') {
        ++at;
      } else if (c == '"') {
        inString = false;
      }
    } else if (c == '"') {
      inString = true;
    } else if (IsNumberChar(c)) {
      std::size_t end = at;
      while (end < document.size() && IsNumberChar(document[end])) {
        ++end;
      }
      if (IsMisread(document.substr(at, end - at))) {
        Location location;
        LocateInText(document, at, location);
        throw LocatedError<cereal::archive::JsonParseError>(
            cereal::archive::JsonParseError("number out of the parser's range"),
            std::move(location));
      }
      at = end - 1;
    }
  }
}

}  // namespace ryx::object::detail
