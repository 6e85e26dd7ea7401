// detail::CheckXmlText: refuses text that an XML 1.0 document cannot hold.
//
// XML 1.0 holds tab, line feed, carriage return and every character from
// U+0020 on, except the surrogates and U+FFFE and U+FFFF; the document is
// declared UTF-8. The archive's writer copies a string's bytes as they are and
// stops at a NUL byte, so without the check a string holding another control
// character, or bytes that are not UTF-8, would become a document that XML
// parsers reject (or, for NUL, be cut short without notice). Invalid UTF-8 is
// refused although this library's own reader would take it back unchanged:
// the document would still not be XML to anyone else. Tab, line feed and
// carriage return pass and come back unchanged: the reader does not normalise
// line ends.
#pragma once

#include <ryx/object/export.hpp>

#include <string_view>

namespace ryx::object::detail {

// Throws std::runtime_error naming `what` (for example "string"), the
// offending byte or character and its offset.
RYX_OBJECT_EXPORT void CheckXmlText(std::string_view text, char const* what);

}  // namespace ryx::object::detail
