#include "object/serialize/detail/json_numbers.hpp"

#include <ryx/serialize/archive/json_parse_error.hpp>

#include <cstddef>

namespace ryx::object::detail {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsNumberChar(char c) {
  return IsDigit(c) || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

// Exponents beyond this are as bad as any other out of range.
constexpr long ExponentCap = 1000000;
constexpr long FastRange = 22;

// Whether `number` (a run of number characters) is a zero the parser misreads.
bool IsMisreadZero(std::string_view number) {
  std::size_t at = number.empty() || number[0] != '-' ? 0 : 1;
  bool nonzero = false;
  bool digits = false;
  long fraction = 0;
  for (; at < number.size() && IsDigit(number[at]); ++at) {
    nonzero |= number[at] != '0';
    digits = true;
  }
  if (at < number.size() && number[at] == '.') {
    for (++at; at < number.size() && IsDigit(number[at]); ++at) {
      nonzero |= number[at] != '0';
      digits = true;
      fraction += fraction < ExponentCap ? 1 : 0;
    }
  }
  if (nonzero || !digits) {
    return false;
  }
  long exponent = 0;
  if (at < number.size() && (number[at] == 'e' || number[at] == 'E')) {
    ++at;
    bool const negative = at < number.size() && number[at] == '-';
    at += at < number.size() && (number[at] == '-' || number[at] == '+') ? 1 : 0;
    for (; at < number.size() && IsDigit(number[at]); ++at) {
      exponent = exponent < ExponentCap ? exponent * 10 + (number[at] - '0') : exponent;
    }
    exponent = negative ? -exponent : exponent;
  }
  long const decimalExponent = exponent - fraction;
  return decimalExponent < -FastRange || decimalExponent > FastRange;
}

}  // namespace

void CheckJsonZeros(std::string_view document) {
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
      if (IsMisreadZero(document.substr(at, end - at))) {
        throw cereal::archive::JsonParseError("zero with a decimal exponent beyond 22");
      }
      at = end - 1;
    }
  }
}

}  // namespace ryx::object::detail
