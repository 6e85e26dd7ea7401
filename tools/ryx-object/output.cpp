#include "output.hpp"

#include "errors.hpp"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include <unistd.h>

namespace ryx::object::tool {

namespace {

std::string Reason() { return std::strerror(errno); }

void WriteAll(std::FILE* file, std::string const& name, std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fflush(file) != 0) {
    throw std::runtime_error("cannot write " + name + ": " + Reason());
  }
}

}  // namespace

void AddOutputOption(CLI::App& command, OutputOptions& options) {
  command.add_option("-o,--output", options.path, "Write to FILE instead of standard output")
      ->type_name("FILE");
}

void WriteOutput(OutputOptions const& options, std::string_view bytes, bool binary) {
  if (options.path.empty()) {
    if (binary && ::isatty(STDOUT_FILENO)) {
      throw UsageError("refusing to write the binary form to a terminal: use -o FILE or redirect");
    }
    WriteAll(stdout, "standard output", bytes);
    return;
  }
  std::FILE* const file = std::fopen(options.path.c_str(), "wb");
  if (file == nullptr) {
    throw UsageError("cannot create " + options.path + ": " + Reason());
  }
  try {
    WriteAll(file, options.path, bytes);
  } catch (...) {
    std::fclose(file);
    throw;
  }
  if (std::fclose(file) != 0) {
    throw std::runtime_error("cannot write " + options.path + ": " + Reason());
  }
}

}  // namespace ryx::object::tool
