#include <ryx/object/serialize/template_data.hpp>

#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/serialize/save.hpp>

#include <boost/variant/get.hpp>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/archive_stack.hpp"
#include "object/serialize/detail/handlers.hpp"

namespace ryx::object {

#define RYX_OBJECT_DETAIL_OUTPUT templating::serialize::archive::output::Data
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_SAVE)

namespace {

// How many nodes deep the tree goes, counted without recursion.
std::size_t CountLevels(mstch::node const& root) {
  std::vector<std::pair<mstch::node const*, std::size_t>> pending{{&root, 1}};
  std::size_t deepest = 0;
  while (!pending.empty()) {
    auto const [node, level] = pending.back();
    pending.pop_back();
    deepest = std::max(deepest, level);
    if (auto const* map = boost::get<mstch::map>(node)) {
      for (auto const& entry : *map) {
        pending.emplace_back(&entry.second, level + 1);
      }
    } else if (auto const* array = boost::get<mstch::array>(node)) {
      for (auto const& item : *array) {
        pending.emplace_back(&item, level + 1);
      }
    }
  }
  return deepest;
}

// Whether every tree the nesting limit lets through is at most `room` nodes
// deep: three per level of values (a dictionary's map, "properties", the
// entry), two per level of schemas, six for the root and the type flags.
bool AnyTreeFits(std::size_t room) { return room >= 6 && (room - 6) / 5 >= GetNestingLimit(); }

}  // namespace

namespace detail {

mstch::node ToTemplateData(std::shared_ptr<Object const> const& value, std::size_t stackPerLevel) {
  templating::serialize::archive::output::Data archive;
  Save(archive, value);
  mstch::node tree = std::move(archive).TakeRoot();
  // A tree refused here is destroyed here, by this library's code.
  std::size_t const room = StackLeft() / std::max(stackPerLevel, TreeStackPerNode);
  if (!AnyTreeFits(room)) {
    std::size_t const levels = CountLevels(tree);
    if (levels > room) {
      throw NestingLimitError("The template data is nested " + std::to_string(levels) +
                              " nodes deep, deeper than the stack of this thread leaves room to "
                              "copy and destroy it");
    }
  }
  return tree;
}

}  // namespace detail

}  // namespace ryx::object
