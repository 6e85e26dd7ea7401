// ToXml / FromXml: a value as an XML document and back.
//
// The value's elements are the children of the root element of a fresh cereal
// XML output archive with its default options. FromXml accepts any bytes: it
// loads the value or throws (cereal::Exception for a malformed document, the
// standard conversions' std::invalid_argument / std::out_of_range for bad
// numbers, NestingLimitError for elements nested deeper than a valid document
// within the nesting limit could be, or than the parser has stack left for, or
// the errors of Load).
//
// Its failures carry a Location (see location.hpp) with a line and column:
// where text stops being XML, where a document lacks the root element, the
// element one level too deep, or the '<' of the element that holds the value
// which failed to load (the path names it). A value read as several fields is
// placed at its own element, not at the field.
//
// XML 1.0 holds tab, line feed, carriage return and every character from
// U+0020 on, in UTF-8 here. Saving a string or dictionary key with another
// control character, U+FFFE or U+FFFF, or bytes that are not UTF-8 throws
// std::runtime_error naming the character and its offset, with ToXml and with
// Save into any XML archive, instead of writing a document that XML parsers
// reject. Every other string comes back as it was, blanks at either end
// included (the writer marks them xml:space="preserve", which the reader
// honours).
//
// The XML archive prints its document recursively when it is destroyed. A
// Save into an archive of your own keeps stack free for that from the frame
// Save was called in: destroy the archive no deeper in the stack.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace ryx::object {

RYX_OBJECT_EXPORT std::string ToXml(std::shared_ptr<Object const> const& value);
RYX_OBJECT_EXPORT std::shared_ptr<Object> FromXml(std::string_view document);

}  // namespace ryx::object
