// detail::XmlTooDeepAt: where an XML document's elements first nest deeper
// than `maxDepth` (the offset of the '<' of the element one level too deep),
// or nothing when they never do; asked before the XML parser, which recurses
// once per level, sees the document. It follows the parser's reading of
// markup (comments, CDATA, processing instructions, declarations, quoted
// attribute values), so it never counts fewer levels than the parser would
// enter; it may count more in documents the parser rejects anyway.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace ryx::object::detail {

std::optional<std::size_t> XmlTooDeepAt(std::string_view document, std::size_t maxDepth);

}  // namespace ryx::object::detail
