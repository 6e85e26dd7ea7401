// ryx-object: check, convert, print and render documents of the object model
// from the command line.
//
// Exit status: 0 on success, 1 for a bad document, a failed check or a failed
// write, 2 for a usage error. Every error is one line on standard error,
// starting with "ryx-object: ".
#include "commands.hpp"
#include "errors.hpp"
#include "plugin.hpp"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <exception>
#include <iostream>

namespace {

int Fail(int status, char const* message) {
  std::cerr << "ryx-object: " << message << '\n';
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  namespace tool = ryx::object::tool;
  CLI::App app("Check, convert, print and render documents of the object model", "ryx-object");
  app.set_version_flag("--version", RYX_OBJECT_VERSION);
  app.require_subcommand(1);
  tool::AddPluginOption(app);
  tool::AddConvert(app);
  tool::AddPrint(app);
  tool::AddCheck(app);
  tool::AddRender(app);
  tool::AddTypeIds(app);
  // Set after the subcommands, which would otherwise inherit it.
  app.footer(
      "Examples:\n"
      "  ryx-object convert --to binary -o record.bin record.json\n"
      "  ryx-object check --strict record.bin\n"
      "Each command's --help shows its options and an example.");
  try {
    app.parse(argc, argv);
    return 0;
  } catch (CLI::Success const& e) {
    return app.exit(e);
  } catch (CLI::ParseError const& e) {
    return Fail(2, e.what());
  } catch (tool::UsageError const& e) {
    return Fail(2, e.what());
  } catch (tool::SilentFailure const&) {
    return 1;
  } catch (std::exception const& e) {
    return Fail(1, e.what());
  }
}
