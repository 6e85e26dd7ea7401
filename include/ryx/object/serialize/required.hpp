// The serialized form of a schema (Required), as cereal's save and load hooks:
// archive(cereal::make_nvp("required", schema)) writes "type" (the type id, an
// unsigned 32-bit number, 0 for the null type) and "child_types" (a sequence
// of schemas in the same form). Instantiated for the archives of Save and Load.
//
// Loading takes the schema as the document holds it, unchecked, and replaces
// the schema only once all of it was read. Schemas nested deeper than
// GetNestingLimit() throw NestingLimitError; in the binary form a child count
// never allocates ahead of the bytes read.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <cereal/macros.hpp>

namespace ryx::object {

template <class Archive>
RYX_OBJECT_EXPORT void CEREAL_SAVE_FUNCTION_NAME(Archive& archive, Required const& required);

template <class Archive>
RYX_OBJECT_EXPORT void CEREAL_LOAD_FUNCTION_NAME(Archive& archive, Required& required);

}  // namespace ryx::object
