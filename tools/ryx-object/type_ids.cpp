// ryx-object id NAME... and ryx-object types: type ids, computed from dotted
// names or listed from the registry, one "name decimal hex" line each.
#include "commands.hpp"
#include "output.hpp"

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/registry/get.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ryx::object::tool {

namespace {

using Named = std::pair<std::string, std::uint32_t>;

std::string Lines(std::vector<Named> const& types) {
  std::string text;
  for (auto const& [name, id] : types) {
    char numbers[32];
    std::snprintf(numbers, sizeof numbers, " %u 0x%08x\n", static_cast<unsigned>(id),
                  static_cast<unsigned>(id));
    text += name;
    text += numbers;
  }
  return text;
}

std::vector<Named> Registered() {
  std::vector<Named> types;
  {
    auto const map = registry::Get().GetMap();
    for (auto const& [id, info] : *map) {
      types.emplace_back(info.GetTypeName(), id.GetValue());
    }
  }
  std::sort(types.begin(), types.end());
  return types;
}

struct IdOptions {
  std::vector<std::string> names;
  OutputOptions output;
};

}  // namespace

void AddTypeIds(CLI::App& app) {
  auto idOptions = std::make_shared<IdOptions>();
  CLI::App* const id = app.add_subcommand("id", "Print the type id of each dotted type name");
  id->add_option("NAME", idOptions->names, "A dotted type name, such as ryx.object.Int32")
      ->required();
  AddOutputOption(*id, idOptions->output);
  id->footer("Example:\n  ryx-object id ryx.object.Int32 my.app.Colour");
  id->callback([idOptions] {
    std::vector<Named> types;
    for (std::string const& name : idOptions->names) {
      types.emplace_back(name, hash::MurmurThree32::MakeData(boost::string_view(name)).GetValue());
    }
    WriteOutput(idOptions->output, Lines(types), false);
  });

  auto typesOutput = std::make_shared<OutputOptions>();
  CLI::App* const types = app.add_subcommand("types", "List the registered types and their ids");
  AddOutputOption(*types, *typesOutput);
  types->footer("Example:\n  ryx-object types | grep Int");
  types->callback([typesOutput] { WriteOutput(*typesOutput, Lines(Registered()), false); });
}

}  // namespace ryx::object::tool
