#include "document.hpp"

#include "errors.hpp"
#include "input.hpp"

#include <ryx/object/dictionary.hpp>
#include <ryx/object/required_text.hpp>
#include <ryx/object/serialize/location.hpp>
#include <ryx/object/serialize/plain_json.hpp>
#include <ryx/object/string.hpp>

#include <stdexcept>
#include <string>

namespace ryx::object::tool {

CLI::Validator FormName() {
  return CLI::Validator(
      [](std::string& text) -> std::string {
        auto const form = FormNames().find(text);
        if (form == FormNames().end()) {
          return "'" + text + "' is not a form: json, xml, binary or plain";
        }
        // The enumerator's number, which the option reads into its Form.
        text = std::to_string(static_cast<int>(form->second));
        return {};
      },
      "json|xml|binary|plain");
}

namespace {

// Whether `bytes` are JSON without the typed layout, which only --from plain
// reads: they parse as plain JSON, and are not an object with a type name.
bool IsPlainJson(std::string_view bytes) noexcept {
  try {
    std::shared_ptr<Object const> const value = FromPlainJson(bytes);
    if (value == nullptr || !value->Is<Dictionary<Object>>()) {
      return true;
    }
    auto const& dictionary = value->As<Dictionary<Object>>();
    return !dictionary.Contains("typename") || !dictionary.Get("typename")->Is<String>();
  } catch (...) {
    return false;
  }
}

// "FILE:LINE:COLUMN: message" for a failure in a text document, "FILE: byte
// N: message" in a binary one, as compilers and editors expect them, with
// the path of the value at fault at the end.
std::string Placed(std::string const& path, std::exception const& error) {
  std::string placed = DisplayName(path);
  auto const* const plain = dynamic_cast<PlainJsonError const*>(&error);
  std::string message = plain != nullptr ? plain->GetReason() : error.what();
  if (Location const* const location = FindLocation(error)) {
    if (location->hasOffset && location->line != 0) {
      placed += ":" + std::to_string(location->line) + ":" + std::to_string(location->column);
    } else if (location->hasOffset) {
      placed += ": byte " + std::to_string(location->offset);
    }
    if (!location->path.empty()) {
      message += " (at " + location->path + ")";
    }
  }
  return placed + ": " + message;
}

constexpr char const* PlainHint = " (the document is JSON without type names: read it with --from plain)";

Required SchemaOption(DocumentOptions const& options) {
  if (options.schema.empty()) {
    return Required();
  }
  if (options.from != Form::Plain) {
    throw UsageError("--schema applies to plain JSON only: add --from plain");
  }
  try {
    return ParseRequired(options.schema);
  } catch (std::exception const& e) {
    throw UsageError(std::string("--schema: ") + e.what());
  }
}

}  // namespace

void AddDocumentOptions(CLI::App& command, DocumentOptions& options) {
  command.add_option("IN", options.path, "The document; standard input when absent or -")
      ->type_name("FILE");
  command
      .add_option("--from", options.from,
                  "The form of the document; recognised from its first bytes by default")
      ->transform(FormName())
      ->option_text("json|xml|binary|plain");
  command
      .add_option("--schema", options.schema,
                  "With --from plain: the schema the value must conform to, written as print "
                  "shows schemas, e.g. 'ryx.object.Array<Int32>'")
      ->type_name("SCHEMA");
}

std::shared_ptr<Object> LoadDocument(DocumentOptions const& options) {
  Required const schema = SchemaOption(options);
  Input const input(options.path);
  std::optional<Form> const form = options.from ? options.from : DetectForm(input.Bytes());
  if (input.Bytes().empty()) {
    throw std::runtime_error(DisplayName(options.path) + ": empty document");
  }
  if (!form) {
    throw std::runtime_error(DisplayName(options.path) +
                             ": not a document: it starts with neither '{' (JSON), '<' (XML) "
                             "nor the byte 0 or 1 (binary)" +
                             (IsPlainJson(input.Bytes()) ? PlainHint : ""));
  }
  try {
    return Load(*form, input.Bytes(), schema);
  } catch (std::exception const& e) {
    bool const hint = *form == Form::Json && IsPlainJson(input.Bytes());
    throw std::runtime_error(Placed(options.path, e) + (hint ? PlainHint : ""));
  }
}

}  // namespace ryx::object::tool
