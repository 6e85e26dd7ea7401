// --plugin FILE: loads a shared library whose types register themselves while
// it is loaded, so that the subcommands read and write documents holding them.
#pragma once

#include <CLI/App.hpp>

namespace ryx::object::tool {

// Adds the repeatable option to the application; each file is loaded as the
// option is parsed, before any subcommand runs. A file that cannot be loaded
// is a UsageError carrying the loader's message.
void AddPluginOption(CLI::App& app);

}  // namespace ryx::object::tool
