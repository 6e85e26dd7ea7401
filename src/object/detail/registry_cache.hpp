// detail::FindCachedRecord: what saving and loading look up for every value
// (a type's record, its name as a std::string and what the direct JSON writer
// and reader need of it), found without the registry's lock and without
// copying the record's functions.
//
// Each thread keeps the addresses of the registry records it has looked up,
// valid for as long as the registry's generation is the one read before the
// lookups; any registration or removal drops them all at the next lookup. A
// record found here must not be removed while it is in use: removing a type
// while another thread saves or loads a value of it is the caller's race.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/registry/info.hpp>

#include <cstdint>
#include <string>

#include "object/serialize/detail/direct_record.hpp"

namespace ryx::object::detail {

struct CachedRecord {
  registry::Info const* info;  // in the registry
  std::string name;            // the record's type name
  DirectRecord direct;
};

// The entry of `id` on this thread, or null when the id is not registered. The
// entry stays valid until the next lookup on this thread, the record it points
// to (and its functions) until the type is removed.
CachedRecord const* FindCachedRecord(hash::MurmurThree32 const& id);

// The registry generation the calling thread's entries belong to: entries
// found before it changed are gone.
std::uint64_t ThreadCacheGeneration() noexcept;

}  // namespace ryx::object::detail
