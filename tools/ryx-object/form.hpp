// The three forms of a document: their names on the command line, telling
// them apart by their first bytes, and loading and saving in each.
#pragma once

#include <ryx/object/fwd.hpp>
#include <ryx/object/serialize/json.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ryx::object::tool {

enum class Form { Json, Xml, Binary };

// "json", "xml" and "binary", for the command line.
std::map<std::string, Form> const& FormNames();

// JSON starts with '{' and XML with '<', after optional blanks; the binary
// form starts with its endianness byte, 0 or 1. Nothing for anything else.
std::optional<Form> DetectForm(std::string_view bytes) noexcept;

std::shared_ptr<Object> Load(Form form, std::string_view document);
// `layout` applies to JSON only.
std::string Save(Form form, std::shared_ptr<Object const> const& value,
                 JsonLayout layout = JsonLayout::Indented);

}  // namespace ryx::object::tool
