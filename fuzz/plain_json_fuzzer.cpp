// Any bytes given to FromPlainJson load or throw a std::exception, with or
// without a schema; what loads conforms to its schema, writes back as plain
// JSON and reads back equal. An input is a schema's text, a line feed, then
// the JSON; without a line feed, or with text that is no schema, the JSON is
// read without one. Anything else (a crash, a sanitizer report, a leak, a
// hang, a broken promise) is a failure.
#include <ryx/object.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

namespace {

using namespace ryx::object;

void Require(bool promise) {
  if (!promise) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string_view input(reinterpret_cast<char const*>(data), size);
  Required schema;
  std::size_t const line = input.find('\n');
  if (line != std::string_view::npos) {
    try {
      schema = ParseRequired(input.substr(0, line));
      // The text form of a schema reads back as the same schema.
      Require(ParseRequired(FormatRequired(schema)) == schema);
      input.remove_prefix(line + 1);
    } catch (std::exception const&) {
    }
  }
  std::shared_ptr<Object> value;
  try {
    value = FromPlainJson(input, schema);
  } catch (std::exception const&) {
    return 0;
  }
  if (value != nullptr) {
    schema.Check(*value);
  }
  // What plain JSON gave, plain JSON holds.
  std::string const written = ToPlainJson(value, JsonLayout::Compact);
  std::shared_ptr<Object> const again = FromPlainJson(written, schema);
  Require(value == nullptr ? again == nullptr : again != nullptr && again->EqualTo(*value));
  return 0;
}
