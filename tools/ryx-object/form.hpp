// The forms of a document: their names on the command line, telling the
// typed forms apart by their first bytes, and loading and saving in each.
// Plain JSON is never recognised by its bytes: any JSON could be it, and a
// typed JSON document that fails to load must say why, not load as plain.
#pragma once

#include <ryx/object/fwd.hpp>
#include <ryx/object/required.hpp>
#include <ryx/object/serialize/json.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ryx::object::tool {

enum class Form { Json, Xml, Binary, Plain };

// "json", "xml", "binary" and "plain", for the command line.
std::map<std::string, Form> const& FormNames();

// JSON starts with '{' and XML with '<', after optional blanks; the binary
// form starts with its endianness byte, 0 or 1. Nothing for anything else.
std::optional<Form> DetectForm(std::string_view bytes) noexcept;

// `schema` applies to plain JSON only.
std::shared_ptr<Object> Load(Form form, std::string_view document,
                             Required const& schema = Required());
// `layout` applies to JSON and plain JSON only.
std::string Save(Form form, std::shared_ptr<Object const> const& value,
                 JsonLayout layout = JsonLayout::Indented);

}  // namespace ryx::object::tool
