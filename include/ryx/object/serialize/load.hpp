// ryx::object::Load: reads one value from an archive.
//
// Reads the type record at the archive's current position, makes a value of
// that type through the registry and lets its load function fill it. A null
// record, or (in JSON and XML) a type name that no type registered, yields a
// null pointer. Loading keeps what the document holds: containers are filled
// without checking their elements against their schema. Instantiated for
// cereal's XML, JSON and portable binary input archives.
//
// On any exception `object` keeps what it held. Besides the archives' own
// errors: NestingLimitError for values or schemas nested deeper than
// GetNestingLimit(); in the binary form std::runtime_error for a type id that
// is not registered (what follows it cannot be read) and for a bool byte
// other than 0 or 1; an exception when the current node holds no value.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>

namespace ryx::object {

template <class Archive>
RYX_OBJECT_EXPORT void Load(Archive& archive, std::shared_ptr<Object>& object);

}  // namespace ryx::object
