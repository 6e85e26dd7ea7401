#include "object/detail/registry_cache.hpp"

#include <ryx/object/registry/get.hpp>

#include <pthread.h>

#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <system_error>
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

// The calling thread's cache, made by its first lookup. It is not a
// thread_local object of its own: the C runtime would register its destructor
// on the thread's first use, and glibc ends the process when that registration
// cannot allocate. A key's destructor is registered once for the process, and
// a thread that cannot store its cache gets std::bad_alloc.
thread_local Cache* threadCache = nullptr;

void DeleteCache(void* cache) noexcept {
  delete static_cast<Cache*>(cache);
  threadCache = nullptr;
}

pthread_key_t MakeCacheKey() {
  pthread_key_t key;
  if (int const error = pthread_key_create(&key, DeleteCache); error != 0) {
    throw std::system_error(error, std::generic_category(), "Cannot keep per-thread type lookups");
  }
  return key;
}

Cache& ThreadCache() {
  if (threadCache == nullptr) {
    static pthread_key_t const key = MakeCacheKey();
    auto made = std::make_unique<Cache>();
    if (pthread_setspecific(key, made.get()) != 0) {
      throw std::bad_alloc();
    }
    threadCache = made.release();
  }
  return *threadCache;
}

}  // namespace

std::uint64_t ThreadCacheGeneration() noexcept {
  return threadCache != nullptr ? threadCache->generation
                                : std::numeric_limits<std::uint64_t>::max();
}

CachedRecord const* FindCachedRecord(hash::MurmurThree32 const& id) {
  registry::Registry& registry = registry::Get();
  // Read before any lookup: an entry filled later may be newer than this
  // generation, never older.
  std::uint64_t const generation = registry.GetGeneration();
  Cache& cache = ThreadCache();
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
