// detail::CheckJsonZeros: refuses a JSON number whose digits are all zero but
// whose decimal exponent (the written exponent less the fraction digits) lies
// outside -22..22, such as 0e-300 or 0.000...0 with 23 or more fraction digits.
//
// The full-precision number parser of rapidjson 1.1.0 normalises such a zero
// as if it had a nonzero digit and reads far outside its table of powers of
// ten. The writer never produces these numbers; refusing them keeps hostile
// documents from reaching that code.
#pragma once

#include <string_view>

namespace ryx::object::detail {

// Throws cereal::archive::JsonParseError.
void CheckJsonZeros(std::string_view document);

}  // namespace ryx::object::detail
