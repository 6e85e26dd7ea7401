// Where a subcommand writes: standard output, or the file given with -o.
#pragma once

#include <CLI/App.hpp>

#include <string>
#include <string_view>

namespace ryx::object::tool {

struct OutputOptions {
  std::string path;  // empty: standard output
};

void AddOutputOption(CLI::App& command, OutputOptions& options);

// Writes `bytes` whole. Binary output is refused (UsageError) when it would
// go to a terminal; a file that cannot be created is a UsageError too.
void WriteOutput(OutputOptions const& options, std::string_view bytes, bool binary);

}  // namespace ryx::object::tool
