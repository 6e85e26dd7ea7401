// detail::XmlNestsDeeperThan: whether an XML document's elements nest deeper
// than `maxDepth`, asked before the XML parser (which recurses once per level)
// sees it. It follows the parser's reading of markup (comments, CDATA, processing
// instructions, declarations, quoted attribute values), so it never counts
// fewer levels than the parser would enter; it may count more in documents the
// parser rejects anyway.
#pragma once

#include <cstddef>
#include <string_view>

namespace ryx::object::detail {

bool XmlNestsDeeperThan(std::string_view document, std::size_t maxDepth);

}  // namespace ryx::object::detail
