// ryx::object::Double: the "ryx.object.Double" value, a Primitive<double, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<double, object::Object>> {
  static constexpr char const* Value = "ryx.object.Double";
};

}  // namespace ryx::type

namespace ryx::object {

using Double = Primitive<double, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<double, Object>;

}  // namespace ryx::object
