// ryx::object::Save: writes any value, or a null pointer, into an archive.
//
// The value's registered save function for the archive writes its type record
// and then its fields into the archive's current node; containers save their
// children through Save again. A null pointer is written as the null record
// (an empty "typename", or the type id 0 in the binary form). Instantiated for
// cereal's XML, JSON and portable binary output archives and the template-data
// archive.
//
// Throws std::runtime_error when the value's type has no save function for
// the archive, std::logic_error when its type is not registered, and
// NestingLimitError when values or schemas nest deeper than GetNestingLimit().
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>

namespace ryx::object {

template <class Archive>
RYX_OBJECT_EXPORT void Save(Archive& archive, std::shared_ptr<Object const> const& object);

}  // namespace ryx::object
