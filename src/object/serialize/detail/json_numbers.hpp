// detail::CheckJsonNumbers: refuses the JSON numbers that the full-precision
// number parser of rapidjson 1.1.0 misreads, before it sees them:
// - a zero whose decimal exponent (the written exponent less the fraction
//   digits) lies outside -22..22, such as 0e-300, which it normalises as if it
//   had a nonzero digit;
// - a nonzero number below 1e-330 or above 1e330, such as 0.000...01 with
//   400 zeros, for which it reads outside its table of powers of ten.
// No double is written as either; the first would read as zero, the second
// as zero or not at all.
#pragma once

#include <string_view>

namespace ryx::object::detail {

// Throws cereal::archive::JsonParseError.
void CheckJsonNumbers(std::string_view document);

}  // namespace ryx::object::detail
