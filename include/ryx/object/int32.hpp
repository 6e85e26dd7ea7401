// ryx::object::Int32: the "ryx.object.Int32" value, a Primitive<int, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<int, object::Object>> {
  static constexpr char const* Value = "ryx.object.Int32";
};

}  // namespace ryx::type

namespace ryx::object {

using Int32 = Primitive<int, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<int, Object>;

}  // namespace ryx::object
