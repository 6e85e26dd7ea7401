#include <ryx/object/serialize/load.hpp>

#include <ryx/object/object.hpp>
#include <ryx/object/option.hpp>
#include <ryx/object/serialize/detail/load_trail.hpp>
#include <ryx/object/serialize/location.hpp>

#include <boost/utility/string_view.hpp>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "object/detail/registry_cache.hpp"
#include "object/detail/type_name.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"
#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/locate.hpp"

namespace ryx::object {

namespace {

// The type record at the current position, whatever its name. Out of line,
// like CannotRead, so that Load's frame, on the stack once per level, holds
// none of their strings.
[[gnu::noinline]] hash::MurmurThree32 ReadTypeId(cereal::JSONInputArchive& archive) {
  std::string name;
  archive(name);
  return hash::MurmurThree32::MakeData(boost::string_view(name));
}

[[gnu::noinline]] hash::MurmurThree32 ReadTypeId(cereal::XMLInputArchive& archive) {
  // The archive would step past the last child of the node.
  if (archive.getNodeName() == nullptr) {
    throw cereal::Exception("XML Parsing failed - the node holds no value to load");
  }
  std::string name;
  archive(name);
  return hash::MurmurThree32::MakeData(boost::string_view(name));
}

[[gnu::noinline]] hash::MurmurThree32 ReadTypeId(cereal::PortableBinaryInputArchive& archive) {
  return hash::MurmurThree32(detail::ReadNumber<std::uint32_t>(archive));
}

// A text document closes the value's node around what was not read; a binary
// stream has no such frame, so a value it cannot read ends the load.
template <class Archive>
[[gnu::noinline]] void CannotRead(hash::MurmurThree32 const& id) {
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryInputArchive>) {
    if (id == hash::MurmurThree32()) {
      return;
    }
    if (Object::TypeName(id) == nullptr) {
      throw std::runtime_error("Cannot load the unregistered type id " +
                               std::to_string(id.GetValue()) +
                               " from the binary form: the bytes that follow cannot be read");
    }
    throw std::runtime_error(std::string("Cannot load a ") + detail::TypeNameOrNotRegistered(id) +
                             " from the binary form: the type has no binary load function");
  } else {
    static_cast<void>(id);
  }
}

// One value, once the outermost Load set up the trail.
template <class Archive>
void LoadValue(Archive& archive, std::shared_ptr<Object>& object) {
  detail::NestingGuard const level(detail::Nesting::value);
  hash::MurmurThree32 const id = ReadTypeId(archive);
  detail::CachedRecord const* const record = detail::FindCachedRecord(id);
  // The record itself stays valid while a construct function uses the registry.
  registry::Info const* const info = record != nullptr ? record->info : nullptr;
  std::shared_ptr<Object> made;
  if (info != nullptr && info->GetConstructFunction()) {
    made = info->GetConstructFunction()();
  }
  LoadFunction<Archive> const* const load =
      made ? &std::get<LoadFunction<Archive>>(info->GetLoadFunctions()) : nullptr;
  if (load == nullptr || !*load) {
    CannotRead<Archive>(id);
    object = nullptr;
    return;
  }
  made->GetOptions().Set(Option::deserializing);
  (*load)(*made, archive);
  made->GetOptions().Clear(Option::deserializing);
  object = std::move(made);
}

// The outermost Load keeps the trail of the values it enters, and a failure
// leaves with the path of the value that failed.
template <class Archive>
[[gnu::noinline]] void LoadOutermost(Archive& archive, std::shared_ptr<Object>& object) {
  detail::LoadTrail trail;
  try {
    LoadValue(archive, object);
  } catch (...) {
    Location location;
    location.path = trail.FailedPath();
    detail::RethrowLocated(std::move(location));
  }
}

}  // namespace

template <class Archive>
void Load(Archive& archive, std::shared_ptr<Object>& object) {
  if (detail::LoadTrail::Current() == nullptr) {
    LoadOutermost(archive, object);
  } else {
    LoadValue(archive, object);
  }
}

template void Load(cereal::XMLInputArchive&, std::shared_ptr<Object>&);
template void Load(cereal::JSONInputArchive&, std::shared_ptr<Object>&);
template void Load(cereal::PortableBinaryInputArchive&, std::shared_ptr<Object>&);

}  // namespace ryx::object
