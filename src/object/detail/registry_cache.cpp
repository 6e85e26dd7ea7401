#include "object/detail/registry_cache.hpp"

#include <ryx/object/registry/get.hpp>

#include <array>
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
  // In front of the map, the last entry found for each of a few id classes: a
  // document uses a handful of types, and a hit here costs no division.
  struct Recent {
    std::uint32_t id = 0;
    CachedRecord const* entry = nullptr;
  };
  std::array<Recent, 64> recent{};

  void Clear() {
    entries.clear();
    recent.fill(Recent());
  }
};

thread_local Cache cache;

}  // namespace

CachedRecord const* FindCachedRecord(hash::MurmurThree32 const& id) {
  registry::Registry& registry = registry::Get();
  // Read before any lookup: an entry filled later may be newer than this
  // generation, never older.
  std::uint64_t const generation = registry.GetGeneration();
  if (generation != cache.generation) {
    cache.Clear();
    cache.generation = generation;
  }
  Cache::Recent& recent = cache.recent[id.GetValue() % cache.recent.size()];
  if (recent.entry != nullptr && recent.id == id.GetValue()) {
    return recent.entry;
  }
  auto cached = cache.entries.find(id.GetValue());
  if (cached == cache.entries.end()) {
    auto const map = registry.GetMap();
    auto const found = map->find(id);
    if (found == map->end()) {
      return nullptr;
    }
    registry::Info const& info = found->second;
    char const* const name = info.GetTypeName();
    cached = cache.entries
                 .emplace(id.GetValue(),
                          CachedRecord{&info, name != nullptr ? name : "", MakeDirectRecord(info)})
                 .first;
  }
  recent = Cache::Recent{id.GetValue(), &cached->second};
  return recent.entry;
}

}  // namespace ryx::object::detail
