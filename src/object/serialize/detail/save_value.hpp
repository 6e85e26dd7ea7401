// detail::SaveValue: Save of a value the caller holds, so that a container
// writes its children without copying their shared pointers.
#pragma once

#include <ryx/object/fwd.hpp>

namespace ryx::object::detail {

// As Save; a null `object` is written as the null record. Instantiated in
// save.cpp for the archives Save is.
template <class Archive>
void SaveValue(Archive& archive, Object const* object);

}  // namespace ryx::object::detail
