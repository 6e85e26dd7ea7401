// Text from a document (keys, strings, JSON Pointers) written as a JSON string
// literal, so that control characters stay visible and a line stays one line.
#pragma once

#include <string>
#include <string_view>

namespace ryx::object::tool {

void AppendQuoted(std::string& out, std::string_view text);

}  // namespace ryx::object::tool
