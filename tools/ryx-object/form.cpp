#include "form.hpp"

#include <ryx/object/serialize/binary.hpp>
#include <ryx/object/serialize/json.hpp>
#include <ryx/object/serialize/plain_json.hpp>
#include <ryx/object/serialize/xml.hpp>

namespace ryx::object::tool {

std::map<std::string, Form> const& FormNames() {
  static std::map<std::string, Form> const names{
      {"json", Form::Json}, {"xml", Form::Xml}, {"binary", Form::Binary}, {"plain", Form::Plain}};
  return names;
}

std::optional<Form> DetectForm(std::string_view bytes) noexcept {
  if (!bytes.empty() && (bytes.front() == '\0' || bytes.front() == '\1')) {
    return Form::Binary;
  }
  std::size_t const first = bytes.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) {
    return std::nullopt;
  }
  switch (bytes[first]) {
    case '{':
      return Form::Json;
    case '<':
      return Form::Xml;
    default:
      return std::nullopt;
  }
}

std::shared_ptr<Object> Load(Form form, std::string_view document, Required const& schema) {
  switch (form) {
    case Form::Json:
      return FromJson(document);
    case Form::Xml:
      return FromXml(document);
    case Form::Plain:
      return FromPlainJson(document, schema);
    case Form::Binary:
      break;
  }
  return FromBinary(document);
}

std::string Save(Form form, std::shared_ptr<Object const> const& value, JsonLayout layout) {
  switch (form) {
    case Form::Json:
      return ToJson(value, layout);
    case Form::Xml:
      return ToXml(value);
    case Form::Plain:
      return ToPlainJson(value, layout);
    case Form::Binary:
      break;
  }
  return ToBinary(value);
}

}  // namespace ryx::object::tool
