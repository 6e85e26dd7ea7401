// ToXml / FromXml: a value as an XML document and back.
//
// The value's elements are the children of the root element of a fresh cereal
// XML output archive with its default options. FromXml accepts any bytes: it
// loads the value or throws (cereal::Exception for a malformed document, the
// standard conversions' std::invalid_argument / std::out_of_range for bad
// numbers, NestingLimitError for elements nested deeper than a valid document
// within the nesting limit could be, or the errors of Load).
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
