#include <ryx/object/serialize/save.hpp>

#include <ryx/object/object.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <tuple>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/registry_cache.hpp"
#include "object/serialize/detail/archive_stack.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"
#include "object/serialize/detail/save_value.hpp"
#include "object/serialize/detail/type_record.hpp"

namespace ryx::object {

namespace {

template <class Archive>
[[gnu::noinline]] void WriteNullRecord(Archive& archive) {
  archive(cereal::make_nvp("typename", std::string()));
}

void WriteNullRecord(cereal::PortableBinaryOutputArchive& archive) {
  detail::WriteNumber(archive, std::uint32_t(0));
}

// Out of line, so that SaveValue's frame, on the stack once per level, holds
// no string.
[[noreturn, gnu::noinline, gnu::cold]] void ThrowNoFunction(std::string const& name) {
  throw std::runtime_error("No serialization function available: " + name);
}

}  // namespace

namespace detail {

template <class Archive>
void SaveValue(Archive& archive, Object const* object) {
  NestingGuard const level(Nesting::value, LaterStackPerValue<Archive>);
  if (object == nullptr) {
    WriteNullRecord(archive);
    return;
  }
  CachedRecord const* const record = FindCachedRecord(object->GetType());
  if (record == nullptr) {
    ThrowNotRegistered(*object);
  }
  SaveFunction<Archive> const& save =
      std::get<SaveFunction<Archive>>(record->info->GetSaveFunctions());
  if (!save) {
    ThrowNoFunction(record->name);
  }
  save(*object, archive);
}

}  // namespace detail

template <class Archive>
void Save(Archive& archive, std::shared_ptr<Object const> const& object) {
  detail::SaveValue(archive, object.get());
}

#define RYX_OBJECT_DETAIL_INSTANTIATE(Archive)              \
  template void detail::SaveValue(Archive&, Object const*); \
  template void Save(Archive&, std::shared_ptr<Object const> const&);
RYX_OBJECT_DETAIL_INSTANTIATE(cereal::XMLOutputArchive)
RYX_OBJECT_DETAIL_INSTANTIATE(cereal::JSONOutputArchive)
RYX_OBJECT_DETAIL_INSTANTIATE(cereal::PortableBinaryOutputArchive)
RYX_OBJECT_DETAIL_INSTANTIATE(templating::serialize::archive::output::Data)
#undef RYX_OBJECT_DETAIL_INSTANTIATE

}  // namespace ryx::object
