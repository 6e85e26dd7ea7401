// ryx-object render TEMPLATE [IN]: a mustache template rendered over the
// document's template data.
#include "commands.hpp"
#include "document.hpp"
#include "input.hpp"
#include "output.hpp"

#include <ryx/object/serialize/template_data.hpp>

#include <memory>
#include <string>

namespace ryx::object::tool {

namespace {

struct RenderOptions {
  std::string templatePath;
  DocumentOptions document;
  OutputOptions output;
};

}  // namespace

void AddRender(CLI::App& app) {
  auto options = std::make_shared<RenderOptions>();
  CLI::App* const command =
      app.add_subcommand("render", "Render a mustache template over the document");
  command->add_option("TEMPLATE", options->templatePath, "The mustache template file")->required();
  AddDocumentOptions(*command, options->document);
  AddOutputOption(*command, options->output);
  command->footer("Example:\n  ryx-object render list.mustache record.json");
  command->callback([options] {
    std::string const mustache(Input(options->templatePath).Bytes());
    WriteOutput(options->output, Render(mustache, LoadDocument(options->document)), false);
  });
}

}  // namespace ryx::object::tool
