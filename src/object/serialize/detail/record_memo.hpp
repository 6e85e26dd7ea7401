// detail::RecordMemo: a direct writer's or reader's own memo of the few
// registry records a document uses, so that a value costs one comparison
// instead of a lookup in the thread's registry cache (a thread-local access,
// a generation check and a table probe).
//
// It keeps the addresses of the thread cache's entries, which stay put until
// that cache is emptied for a change of the registry; the memo forgets them
// all as soon as a lookup finds the cache emptied. An entry it hands out is
// therefore valid until the next lookup through the memo. Only registered
// types are kept, so a type registered while the document is read is seen as
// soon as it is. Records must not be removed meanwhile, as for any save or
// load (see registry/get.hpp).
#pragma once

#include <ryx/hash/murmur_three32.hpp>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "object/detail/registry_cache.hpp"

namespace ryx::object::detail {

class RecordMemo {
 public:
  using Entry = CachedRecord;

  // The entry of a registered id, or null.
  Entry const* Find(hash::MurmurThree32 const& id) {
    Slot& slot = slots[SlotOf(id.GetValue())];
    if (slot.entry != nullptr && slot.id == id.GetValue()) {
      return slot.entry;
    }
    CachedRecord const* const entry = FindCachedRecord(id);
    std::uint64_t const generation = ThreadCacheGeneration();
    if (generation != cacheGeneration) {
      slots.fill(Slot());
      cacheGeneration = generation;
    }
    if (entry != nullptr) {
      slot = Slot{id.GetValue(), entry};
    }
    return entry;
  }

  // The entry of the type a text form names, or null: the name's hash is
  // the type id, and the names met last are remembered beside their ids.
  Entry const* FindNamed(std::string_view name) {
    Named& named = names[(name.size() + (name.empty() ? 0 : name.back())) % names.size()];
    if (named.known && named.name == name) {
      Entry const* const entry = Find(named.id);
      if (entry != nullptr) {
        return entry;
      }
    }
    hash::MurmurThree32 const id =
        hash::MurmurThree32::MakeData(boost::string_view(name.data(), name.size()));
    named.name.assign(name.data(), name.size());
    named.id = id;
    named.known = true;
    return Find(id);
  }

 private:
  struct Slot {
    std::uint32_t id = 0;
    Entry const* entry = nullptr;
  };

  struct Named {
    bool known = false;
    std::string name;
    hash::MurmurThree32 id;
  };

  // The top bits of the id times the golden ratio: type ids are hashes
  // already, but mixing keeps ids that share low bits apart.
  static std::size_t SlotOf(std::uint32_t id) noexcept {
    return (id * 0x9E3779B1u) >> (32 - SlotBits);
  }

  static constexpr unsigned SlotBits = 5;
  std::array<Slot, std::size_t(1) << SlotBits> slots{};
  std::uint64_t cacheGeneration = ThreadCacheGeneration();
  std::array<Named, 8> names;
};

}  // namespace ryx::object::detail
