// detail::RethrowLocated and detail::LocateInText: attaching a Location to a
// failure of reading a document, keeping its type and message.
#pragma once

#include <ryx/object/serialize/location.hpp>

#include <cstddef>
#include <string_view>

namespace ryx::object::detail {

// Sets `location`'s offset and, counting in `text`, its line and column
// (from 1; the column in characters, not bytes).
void LocateInText(std::string_view text, std::size_t offset, Location& location);

// The offset of the opening quote of the JSON string whose closing quote is
// just before `end`: the first quote found backwards that follows an even
// number of backslashes (every quote inside a string follows an odd number).
std::size_t StringStart(std::string_view text, std::size_t end) noexcept;

// Call only from inside a catch block. Rethrows the exception being handled
// as a LocatedError of its very type, carrying `location`, when it is one of
// the types reading a document throws (cereal's, the standard library's
// logic and runtime errors, NestingLimitError); one that carries a location
// already keeps the parts of it `location` does not have. Any other exception
// (std::bad_alloc, BadCast, a type's own) passes on unchanged.
[[noreturn]] void RethrowLocated(Location location);

}  // namespace ryx::object::detail
