// ToJson / FromJson: a value as a JSON document and back.
//
// The document is the root object that Save writes into a fresh cereal JSON
// output archive with its default options. FromJson accepts any bytes: it
// loads the value or throws (cereal::Exception, cereal::archive::JsonParseError
// for a malformed document or a value of the wrong JSON kind,
// NestingLimitError, or the errors of Load).
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

RYX_OBJECT_EXPORT std::string ToJson(std::shared_ptr<Object const> const& value);
RYX_OBJECT_EXPORT std::shared_ptr<Object> FromJson(std::string_view document);

}  // namespace ryx::object
