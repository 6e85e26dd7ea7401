// ToJson / FromJson: a value as a JSON document and back.
//
// The document is the root object that Save writes into a fresh cereal JSON
// output archive with its default options, in one of two layouts of the same
// members. FromJson accepts either layout and any other bytes: it loads the
// value or throws (cereal::Exception, cereal::archive::JsonParseError for a
// malformed document or a value of the wrong JSON kind, NestingLimitError, or
// the errors of Load).
//
// ToJson and FromJson write and read the library's own kinds directly, without
// an archive in between; for any other registered type, and for documents not
// laid out as ToJson writes them, they go through cereal's archives and the
// registered save and load functions, as ToJsonThroughArchive and
// FromJsonThroughArchive always do. Both paths give the same bytes, values and
// errors; the second is slower, and is the reference the first is held to.
//
// Strings and keys keep every byte but NUL: the writer escapes it (\u0000),
// the reader ends the string at its first NUL, so "a\0b" loads as "a" (the
// binary form keeps every byte). Bytes that are not UTF-8 are copied as they
// are. Non-finite doubles are written as the tokens NaN, Infinity and
// -Infinity and read back: such documents are not strict JSON.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace ryx::object {

enum class JsonLayout {
  // A line per member and element, four spaces of indentation per level and a
  // blank after each colon: the text of cereal's JSON output archive.
  Indented,
  // No whitespace at all: the same members in the fewest bytes.
  Compact,
};

RYX_OBJECT_EXPORT std::string ToJson(std::shared_ptr<Object const> const& value,
                                     JsonLayout layout = JsonLayout::Indented);
RYX_OBJECT_EXPORT std::shared_ptr<Object> FromJson(std::string_view document);

RYX_OBJECT_EXPORT std::string ToJsonThroughArchive(std::shared_ptr<Object const> const& value,
                                                   JsonLayout layout = JsonLayout::Indented);
RYX_OBJECT_EXPORT std::shared_ptr<Object> FromJsonThroughArchive(std::string_view document);

}  // namespace ryx::object
