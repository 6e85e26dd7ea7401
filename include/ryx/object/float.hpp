// ryx::object::Float: the "ryx.object.Float" value, a Primitive<float, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<float, object::Object>> {
  static constexpr char const* Value = "ryx.object.Float";
};

}  // namespace ryx::type

namespace ryx::object {

using Float = Primitive<float, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<float, Object>;

}  // namespace ryx::object
