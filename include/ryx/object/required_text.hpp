// FormatRequired / ParseRequired: a schema as a line of text, for the command
// line, configuration and C callers, and back.
//
//   any                                      the empty schema: any value
//   ryx.object.Int32                         a value of that type
//   ryx.object.Array<ryx.object.Int32>       an array of Int32 elements
//   ryx.object.Array<Int32,String>           exactly an Int32 then a String
//   any<Int32,String>                        the same elements, any container
//   my.app.Point                             a type registered by its user
//   0x1a2b3c4d                               a type id without a name
//
// A type is written by its registered name, or by its id in hexadecimal when
// it has none; "any" is the null type; child types follow in angle brackets,
// separated by commas. FormatRequired writes full names and no blanks, and
// ParseRequired reads back exactly the schema it was given. ParseRequired
// also takes the library's own types without the "ryx.object." prefix and
// blanks between the parts.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/required.hpp>

#include <string>
#include <string_view>

namespace ryx::object {

// Throws NestingLimitError for a schema nested deeper than the limit.
RYX_OBJECT_EXPORT std::string FormatRequired(Required const& schema);

// Throws std::invalid_argument naming the character at fault and what was
// expected there, for text that is not a schema, a name that is no
// registered type, or "any" alone among child types (which the empty schema
// cannot be); NestingLimitError for a schema nested deeper than the limit.
RYX_OBJECT_EXPORT Required ParseRequired(std::string_view text);

}  // namespace ryx::object
