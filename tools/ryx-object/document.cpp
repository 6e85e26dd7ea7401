#include "document.hpp"

#include "input.hpp"

#include <stdexcept>
#include <string>

namespace ryx::object::tool {

CLI::Validator FormName() {
  return CLI::Validator(
      [](std::string& text) -> std::string {
        auto const form = FormNames().find(text);
        if (form == FormNames().end()) {
          return "'" + text + "' is not a form: json, xml or binary";
        }
        // The enumerator's number, which the option reads into its Form.
        text = std::to_string(static_cast<int>(form->second));
        return {};
      },
      "json|xml|binary");
}

void AddDocumentOptions(CLI::App& command, DocumentOptions& options) {
  command.add_option("IN", options.path, "The document; standard input when absent or -")
      ->type_name("FILE");
  command
      .add_option("--from", options.from,
                  "The form of the document; recognised from its first bytes by default")
      ->transform(FormName())
      ->option_text("json|xml|binary");
}

std::shared_ptr<Object> LoadDocument(DocumentOptions const& options) {
  Input const input(options.path);
  std::optional<Form> const form = options.from ? options.from : DetectForm(input.Bytes());
  if (input.Bytes().empty()) {
    throw std::runtime_error(DisplayName(options.path) + ": empty document");
  }
  if (!form) {
    throw std::runtime_error(DisplayName(options.path) +
                             ": not a document: it starts with neither '{' (JSON), '<' (XML) "
                             "nor the byte 0 or 1 (binary)");
  }
  try {
    return Load(*form, input.Bytes());
  } catch (std::exception const& e) {
    throw std::runtime_error(DisplayName(options.path) + ": " + e.what());
  }
}

}  // namespace ryx::object::tool
