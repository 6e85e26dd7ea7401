// The shared steps of Parse<T> for the integer and floating point kinds: the
// standard conversion, its exceptions turned into messages that quote the
// text, and the range check of the narrower integer types.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace ryx::object::detail {

// Runs `convert` on `text`; its std::invalid_argument and std::out_of_range
// become std::invalid_argument with the given message followed by the text.
template <class Convert>
auto ConvertOrThrow(std::string const& text, Convert convert, char const* notANumber,
                    char const* outOfRange) {
  try {
    return convert(text);
  } catch (std::invalid_argument const&) {
    throw std::invalid_argument(notANumber + text);
  } catch (std::out_of_range const&) {
    throw std::invalid_argument(outOfRange + text);
  }
}

inline long long ParseSigned(std::string const& text, long long minimum, long long maximum) {
  long long const value = ConvertOrThrow(
      text, [](std::string const& t) { return std::stoll(t, nullptr, 10); },
      "Failed to parse the string into a signed integer: ",
      "The string was out of the range of a signed integer: ");
  if (value < minimum || value > maximum) {
    throw std::out_of_range("The parsed value '" + std::to_string(value) +
                            "' was out of range of the integer type: " + std::to_string(minimum) +
                            " to " + std::to_string(maximum));
  }
  return value;
}

// A leading minus sign wraps modulo 2^64, as the conversion defines; the wrapped
// value then meets the range check.
inline unsigned long long ParseUnsigned(std::string const& text, unsigned long long maximum) {
  unsigned long long const value = ConvertOrThrow(
      text, [](std::string const& t) { return std::stoull(t, nullptr, 10); },
      "Failed to parse the string into an unsigned integer: ",
      "The string was out of the range of an unsigned integer: ");
  if (value > maximum) {
    throw std::out_of_range("The parsed value '" + std::to_string(value) +
                            "' was out of range of the integer type: 0 to " +
                            std::to_string(maximum));
  }
  return value;
}

}  // namespace ryx::object::detail
