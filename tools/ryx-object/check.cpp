// ryx-object check [--strict] [--quiet] [IN]: whether the document loads and,
// with --strict, whether what it loads is sound.
#include "commands.hpp"
#include "document.hpp"
#include "errors.hpp"
#include "input.hpp"
#include "quote.hpp"

#include <ryx/object/problems.hpp>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace ryx::object::tool {

namespace {

struct CheckOptions {
  DocumentOptions document;
  bool quiet = false;
  bool strict = false;
};

// One line per problem: "ryx-object: FILE: "POINTER": message".
void WriteProblems(std::string const& path, std::vector<Problem> const& problems) {
  std::string const file = DisplayName(path);
  for (Problem const& problem : problems) {
    std::string line = "ryx-object: " + file + ": ";
    AppendQuoted(line, problem.path);
    line += ": " + problem.message + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
  }
}

void Check(CheckOptions const& options) {
  std::shared_ptr<Object> const value = LoadDocument(options.document);
  if (!options.strict) {
    return;
  }
  std::vector<Problem> const problems = FindProblems(value);
  if (problems.empty()) {
    return;
  }
  if (!options.quiet) {
    WriteProblems(options.document.path, problems);
  }
  throw SilentFailure{};
}

}  // namespace

void AddCheck(CLI::App& app) {
  auto options = std::make_shared<CheckOptions>();
  CLI::App* const command = app.add_subcommand(
      "check",
      "Load the document, and with --strict look through what it loads: nothing and status 0 "
      "when all is well, else the problems found and status 1");
  AddDocumentOptions(*command, options->document);
  command->add_flag("--strict", options->strict,
                    "Also report every element that does not fit its container's schema, every "
                    "null value and every value nested too deep, each with its JSON Pointer");
  command->add_flag("-q,--quiet", options->quiet, "Only the exit status tells the outcome");
  command->footer(
      "Examples:\n"
      "  ryx-object check --strict record.json\n"
      "  ryx-object check -q upload.xml || echo rejected");
  command->callback([options] {
    if (!options->quiet) {
      Check(*options);
      return;
    }
    try {
      Check(*options);
    } catch (...) {
      throw SilentFailure{};
    }
  });
}

}  // namespace ryx::object::tool
