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

// The document in the form asked for.
std::string Convert(ConvertOptions const& options) {
  return Save(options.to, LoadDocument(options.document),
              options.compact ? JsonLayout::Compact : JsonLayout::Indented);
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
  command->callback(
      [options] { WriteOutput(options->output, Convert(*options), options->to == Form::Binary); });
}

}  // namespace ryx::object::tool
