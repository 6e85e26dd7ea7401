#include <ryx/serialize/archive/json_parse_error.hpp>

#include <utility>

namespace cereal::archive {

JsonParseError::JsonParseError(std::string check)
    : Exception("JSON parse error: " + check), check(std::move(check)) {}

void ThrowJsonParseError(char const* check) { throw JsonParseError(check != nullptr ? check : ""); }

}  // namespace cereal::archive
