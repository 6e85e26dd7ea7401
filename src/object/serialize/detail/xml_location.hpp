// detail::RethrowLocatedInXml: places a failed XML load in its document, by
// line and column, keeping the failure's type and message.
#pragma once

#include <string_view>

namespace ryx::object::detail {

// Call only from inside a catch block, after the document passed the depth
// check (it parses the document again, recursing once per element level).
// Rethrows the exception being handled as RethrowLocated does, placed at
//  - where the text stops being XML, if it does;
//  - else, when there is no root element for the archive, at the first
//    element or, with none, the end of the text;
//  - else at the '<' of the element holding the value whose load failed, as
//    deep along the failure's path as the document goes.
// An exception the library does not locate, or one met while looking,
// leaves it as it was.
[[noreturn]] void RethrowLocatedInXml(std::string_view document);

}  // namespace ryx::object::detail
