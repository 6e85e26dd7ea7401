// detail::RecordMemo: a direct writer's or reader's own memo of the few
// registry records a document uses, so that a value costs one comparison
// instead of a lookup in the thread's registry cache (a thread-local access,
// a generation check and a table probe).
//
// It keeps copies: an entry of the registry cache lasts only until the next
// lookup. Only registered types are kept, so a type registered while the
// document is read is seen as soon as it is. Records must not be removed
// meanwhile, as for any save or load (see registry/get.hpp).
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
  struct Entry {
    std::uint32_t id = 0;
    registry::Info const* info = nullptr;  // null for a free slot
    std::string name;
    DirectRecord direct;
  };

  // The entry of a registered id, or null.
  Entry const* Find(hash::MurmurThree32 const& id) {
    Entry& slot = slots[id.GetValue() % slots.size()];
    if (slot.info != nullptr && slot.id == id.GetValue()) {
      return &slot;
    }
    CachedRecord const* const record = FindCachedRecord(id);
    if (record == nullptr) {
      return nullptr;
    }
    slot.id = id.GetValue();
    slot.info = record->info;
    slot.name = record->name;
    slot.direct = record->direct;
    return &slot;
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
  struct Named {
    bool known = false;
    std::string name;
    hash::MurmurThree32 id;
  };

  std::array<Entry, 8> slots;
  std::array<Named, 8> names;
};

}  // namespace ryx::object::detail
