#include "object/detail/registry_cache.hpp"

#include <ryx/object/registry/get.hpp>

#include <cstdint>
#include <limits>
#include <unordered_map>

namespace ryx::object::detail {

namespace {

struct Cache {
  // No generation has this value before the counter wraps, so an empty cache
  // is refreshed by its first lookup.
  std::uint64_t generation = std::numeric_limits<std::uint64_t>::max();
  std::unordered_map<std::uint32_t, CachedRecord> entries;
};

thread_local Cache cache;

}  // namespace

CachedRecord const* FindCachedRecord(hash::MurmurThree32 const& id) {
  registry::Registry& registry = registry::Get();
  // Read before any lookup: an entry filled later may be newer than this
  // generation, never older.
  std::uint64_t const generation = registry.GetGeneration();
  if (generation != cache.generation) {
    cache.entries.clear();
    cache.generation = generation;
  }
  auto const cached = cache.entries.find(id.GetValue());
  if (cached != cache.entries.end()) {
    return &cached->second;
  }
  auto const map = registry.GetMap();
  auto const found = map->find(id);
  if (found == map->end()) {
    return nullptr;
  }
  registry::Info const& info = found->second;
  char const* const name = info.GetTypeName();
  return &cache.entries
              .emplace(id.GetValue(), CachedRecord{&info, name != nullptr ? name : ""})
              .first->second;
}

}  // namespace ryx::object::detail
