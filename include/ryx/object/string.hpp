// ryx::object::String: the "ryx.object.String" value, a Primitive<std::string, Object>.
//
// A string takes its value only from another string: a number is never turned
// into text.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>

#include <string>

namespace ryx::object {

using String = Primitive<std::string, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<std::string, Object>;

}  // namespace ryx::object
