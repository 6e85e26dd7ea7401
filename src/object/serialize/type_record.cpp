#include "object/serialize/detail/type_record.hpp"

#include <ryx/object/option.hpp>
#include <ryx/serialize/is.hpp>
#include <ryx/type/demangle.hpp>

#include <boost/utility/string_view.hpp>

#include <cstdint>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>

#include "object/detail/registry_cache.hpp"
#include "object/detail/type_name.hpp"

namespace ryx::object {

namespace detail {

void ThrowNotRegistered(Object const& object) {
  char const* mangled = typeid(object).name();
  if (*mangled == '*') {
    ++mangled;
  }
  throw std::logic_error("The class has not been registered: " + type::Demangle(mangled));
}

std::string const& RegisteredTypeName(Object const& object) {
  CachedRecord const* const record = FindCachedRecord(object.GetType());
  if (record == nullptr) {
    ThrowNotRegistered(object);
  }
  return record->name;
}

void ThrowTypeMismatch(std::string const& found, Object const& object) {
  throw std::runtime_error("Cannot load a value of type \"" + found + "\" into a " +
                           TypeNameOrNotRegistered(object.GetType()));
}

void WriteTypeRecord(cereal::PortableBinaryOutputArchive& archive, Object const& object) {
  WriteNumber(archive, object.GetType().GetValue());
}

void ReadTypeRecord(cereal::PortableBinaryInputArchive& archive, Object& object) {
  if (object.GetOptions().Test(Option::deserializing)) {
    return;
  }
  std::uint32_t const id = ReadNumber<std::uint32_t>(archive);
  if (hash::MurmurThree32(id) != object.GetType()) {
    char const* const name = Object::TypeName(hash::MurmurThree32(id));
    ThrowTypeMismatch(name != nullptr ? name : "[not-registered] " + std::to_string(id), object);
  }
}

}  // namespace detail

// In the binary form the record is the bare type id, which every kind's
// handler writes itself; Serialize writes the same for types of their own.
template <class Archive>
void Object::Serialize(Archive& archive) const {
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryOutputArchive>) {
    detail::WriteTypeRecord(archive, *this);
  } else {
    std::string const& name = detail::RegisteredTypeName(*this);
    archive(cereal::make_nvp("typename", name));
    if constexpr (std::is_same_v<Archive, templating::serialize::archive::output::Data>) {
      // Beside "typename", the flags a template tests: is.typename.<dotted name>.
      std::string const key = "typename";
      cereal::IsFlags const flags = cereal::Is(key, name);
      archive.SetNextName(flags.first);
      archive.StartNode();
      archive.SetNextName(flags.second);
      archive.StartNode();
      flags.flag.Serialize(archive);
      archive.FinishNode();
      archive.FinishNode();
    }
  }
}

template <class Archive>
void Object::Serialize(Archive& archive) {
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryInputArchive>) {
    detail::ReadTypeRecord(archive, *this);
  } else {
    if (options.Test(Option::deserializing)) {
      return;
    }
    std::string name;
    archive(cereal::make_nvp("typename", name));
    // Only the hash of the name is compared, as everywhere in the type system.
    if (hash::MurmurThree32::MakeData(boost::string_view(name)) != typeId) {
      detail::ThrowTypeMismatch(name, *this);
    }
  }
}

template void Object::Serialize(cereal::XMLOutputArchive&) const;
template void Object::Serialize(cereal::JSONOutputArchive&) const;
template void Object::Serialize(templating::serialize::archive::output::Data&) const;
template void Object::Serialize(cereal::PortableBinaryOutputArchive&) const;
template void Object::Serialize(cereal::XMLInputArchive&);
template void Object::Serialize(cereal::JSONInputArchive&);
template void Object::Serialize(cereal::PortableBinaryInputArchive&);

}  // namespace ryx::object
