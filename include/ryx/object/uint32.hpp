// ryx::object::UInt32: the "ryx.object.UInt32" value, a Primitive<unsigned int, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<unsigned int, object::Object>> {
  static constexpr char const* Value = "ryx.object.UInt32";
};

}  // namespace ryx::type

namespace ryx::object {

using UInt32 = Primitive<unsigned int, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<unsigned int, Object>;

}  // namespace ryx::object
