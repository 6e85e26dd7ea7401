// ryx-object convert --to FORM [--from FORM] [IN]: the document in another form.
#include "commands.hpp"
#include "document.hpp"
#include "form.hpp"
#include "output.hpp"

#include <memory>

namespace ryx::object::tool {

namespace {

struct ConvertOptions {
  DocumentOptions document;
  OutputOptions output;
  Form to = Form::Json;
  bool compact = false;
};

// The document in the form asked for. Text ends with a line feed, as text
// files and terminals expect; the binary form is left byte for byte.
std::string Convert(ConvertOptions const& options) {
  std::string document = Save(options.to, LoadDocument(options.document),
                              options.compact ? JsonLayout::Compact : JsonLayout::Indented);
  if (options.to != Form::Binary && (document.empty() || document.back() != '\n')) {
    document += '\n';
  }
  return document;
}

}  // namespace

void AddConvert(CLI::App& app) {
  auto options = std::make_shared<ConvertOptions>();
  CLI::App* const command = app.add_subcommand("convert", "Write the document in another form");
  command->add_option("--to", options->to, "The form to write")
      ->required()
      ->transform(FormName())
      ->option_text("json|xml|binary|plain REQUIRED");
  command->add_flag("--compact", options->compact,
                    "Write JSON (typed or plain) without any whitespace");
  AddDocumentOptions(*command, options->document);
  AddOutputOption(*command, options->output);
  command->footer(
      "Examples:\n"
      "  ryx-object convert --to binary -o record.bin record.json\n"
      "  ryx-object convert --to json --compact record.bin");
  command->callback(
      [options] { WriteOutput(options->output, Convert(*options), options->to == Form::Binary); });
}

}  // namespace ryx::object::tool
