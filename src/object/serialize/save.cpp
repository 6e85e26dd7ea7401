#include <ryx/object/serialize/save.hpp>

#include <ryx/object/object.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <tuple>

#include "object/serialize/detail/archives.hpp"
#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/type_record.hpp"

namespace ryx::object {

namespace {

template <class Archive>
void WriteNullRecord(Archive& archive) {
  archive(cereal::make_nvp("typename", std::string()));
}

void WriteNullRecord(cereal::PortableBinaryOutputArchive& archive) { archive(std::uint32_t(0)); }

}  // namespace

template <class Archive>
void Save(Archive& archive, std::shared_ptr<Object const> const& object) {
  detail::NestingGuard const level(detail::Nesting::value);
  if (!object) {
    WriteNullRecord(archive);
    return;
  }
  SaveFunctions const functions = Object::GetSaveFunctions(object->GetType());
  SaveFunction<Archive> const& save = std::get<SaveFunction<Archive>>(functions);
  if (!save) {
    // An unregistered type has neither functions nor a name for the message.
    char const* const name = detail::RegisteredTypeName(*object);
    throw std::runtime_error(std::string("No serialization function available: ") + name);
  }
  save(*object, archive);
}

template void Save(cereal::XMLOutputArchive&, std::shared_ptr<Object const> const&);
template void Save(cereal::JSONOutputArchive&, std::shared_ptr<Object const> const&);
template void Save(cereal::PortableBinaryOutputArchive&, std::shared_ptr<Object const> const&);
template void Save(templating::serialize::archive::output::Data&,
                   std::shared_ptr<Object const> const&);

}  // namespace ryx::object
