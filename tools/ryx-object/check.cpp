// ryx-object check [--quiet] [IN]: whether the document loads.
#include "commands.hpp"
#include "document.hpp"
#include "errors.hpp"

#include <memory>

namespace ryx::object::tool {

namespace {

struct CheckOptions {
  DocumentOptions document;
  bool quiet = false;
};

}  // namespace

void AddCheck(CLI::App& app) {
  auto options = std::make_shared<CheckOptions>();
  CLI::App* const command = app.add_subcommand(
      "check",
      "Load the document: nothing and status 0 when it loads, else its first problem "
      "and status 1");
  AddDocumentOptions(*command, options->document);
  command->add_flag("-q,--quiet", options->quiet, "Only the exit status tells the outcome");
  command->callback([options] {
    if (!options->quiet) {
      LoadDocument(options->document);
      return;
    }
    try {
      LoadDocument(options->document);
    } catch (...) {
      throw SilentFailure{};
    }
  });
}

}  // namespace ryx::object::tool
