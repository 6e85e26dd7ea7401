// The subcommands of ryx-object. Each adds itself, with its options and the
// function that runs it, to the application.
#pragma once

#include <CLI/App.hpp>

namespace ryx::object::tool {

void AddConvert(CLI::App& app);
void AddPrint(CLI::App& app);
void AddCheck(CLI::App& app);
void AddRender(CLI::App& app);
// `id` and `types`.
void AddTypeIds(CLI::App& app);

}  // namespace ryx::object::tool
