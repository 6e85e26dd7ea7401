// ryx-object print [IN]: the document as a tree for people to read.
#include "commands.hpp"
#include "document.hpp"
#include "output.hpp"
#include "tree.hpp"

#include <ryx/object/object.hpp>

#include <memory>

namespace ryx::object::tool {

namespace {

struct PrintOptions {
  DocumentOptions document;
  OutputOptions output;
};

}  // namespace

void AddPrint(CLI::App& app) {
  auto options = std::make_shared<PrintOptions>();
  CLI::App* const command = app.add_subcommand("print", "Show the document as a readable tree");
  AddDocumentOptions(*command, options->document);
  AddOutputOption(*command, options->output);
  command->footer("Example:\n  ryx-object print record.bin");
  command->callback([options] {
    WriteOutput(options->output, Tree(LoadDocument(options->document).get()), false);
  });
}

}  // namespace ryx::object::tool
