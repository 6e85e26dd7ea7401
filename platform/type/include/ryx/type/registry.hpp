// ryx::type::Registry<Info>: a process-wide table of type records keyed by
// type id, guarded by one (non-recursive) mutex.
//
// Info must provide GetTypeNameId() returning the record's hash::MurmurThree32.
// The first record registered under an id wins; later ones are dropped silently.
//
// The generation counts the changes of the map, so that a reader may keep
// what it found (a record's address stays valid until the record is removed)
// for as long as the generation it read before the lookup is still current.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/type/registry/lock.hpp>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace ryx::type {

template <class I>
class Registry {
public:
  using Info = I;
  using Map = std::unordered_map<hash::MurmurThree32, Info>;

  Registry() = default;
  Registry(Registry const&) = delete;
  Registry& operator=(Registry const&) = delete;
  virtual ~Registry() = default;

  // Inserts `info` unless its id is present; returns the record the map holds
  // under the id. Throws std::system_error when the mutex cannot be locked.
  Info const& Register(Info info) {
    std::lock_guard<std::mutex> const guard(mutex);
    hash::MurmurThree32 const id = info.GetTypeNameId();
    auto const [record, inserted] = map.emplace(id, std::move(info));
    if (inserted) {
      generation.fetch_add(1, std::memory_order_release);
    }
    return record->second;
  }

  // Removes the record of `id`, if any.
  void Deregister(hash::MurmurThree32 const& id) {
    std::lock_guard<std::mutex> const guard(mutex);
    if (map.erase(id) != 0) {
      generation.fetch_add(1, std::memory_order_release);
    }
  }

  // Moves on with every record registered or removed; never locks.
  std::uint64_t GetGeneration() const noexcept {
    return generation.load(std::memory_order_acquire);
  }

  // Read access to the map; the registry stays locked while the result lives.
  // Calling any other registry operation meanwhile deadlocks.
  registry::Lock<Map const> GetMap() const {
    std::unique_lock<std::mutex> guard(mutex);
    registry::Lock<Map const> lock(map, [this] { mutex.unlock(); });
    guard.release();
    return lock;
  }

private:
  Map map;
  mutable std::mutex mutex;
  std::atomic<std::uint64_t> generation{0};
};

}  // namespace ryx::type
