#include "plugin.hpp"

#include "errors.hpp"

#include <dlfcn.h>

#include <string>
#include <vector>

namespace ryx::object::tool {

namespace {

// The library stays loaded until the process ends: its types stay registered
// and the values made by its functions may live to the end.
void LoadPlugin(std::string const& file) {
  // A name without a slash would be looked for on the library path, not here.
  std::string const path = file.find('/') == std::string::npos ? "./" + file : file;
  if (dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL) == nullptr) {
    char const* const problem = dlerror();
    throw UsageError("cannot load the plugin " + file + ": " +
                     (problem != nullptr ? problem : "unknown error"));
  }
}

}  // namespace

void AddPluginOption(CLI::App& app) {
  app.add_option_function<std::vector<std::string>>(
         "--plugin",
         [](std::vector<std::string> const& files) {
           for (std::string const& file : files) {
             LoadPlugin(file);
           }
         },
         "A shared library whose types register themselves when loaded (repeatable)")
      ->type_name("FILE")
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

}  // namespace ryx::object::tool
