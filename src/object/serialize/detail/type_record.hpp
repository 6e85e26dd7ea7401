// The type record as each kind's handler writes and reads it: through
// Object::Serialize in the text and template-data forms, as the bare 32-bit
// type id in the portable binary form. A record naming another type than the
// object's own is rejected; the object's type id never changes.
#pragma once

#include <ryx/object/object.hpp>

#include <string>

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"

namespace ryx::object::detail {

// std::logic_error naming the C++ class of an unregistered object.
[[noreturn]] void ThrowNotRegistered(Object const& object);

// The registered name of the object's type, valid until the next registry
// lookup on this thread; std::logic_error naming the C++ class when there is
// none.
std::string const& RegisteredTypeName(Object const& object);

// std::runtime_error: the document holds a `found` where `object` was expected.
[[noreturn]] void ThrowTypeMismatch(std::string const& found, Object const& object);

template <class Archive>
void WriteTypeRecord(Archive& archive, Object const& object) {
  object.Serialize(archive);
}

void WriteTypeRecord(cereal::PortableBinaryOutputArchive& archive, Object const& object);

template <class Archive>
void ReadTypeRecord(Archive& archive, Object& object) {
  object.Serialize(archive);
}

void ReadTypeRecord(cereal::PortableBinaryInputArchive& archive, Object& object);

}  // namespace ryx::object::detail
