// ryx::object::Int8: the "ryx.object.Int8" value, a Primitive<signed char, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<signed char, object::Object>> {
  static constexpr char const* Value = "ryx.object.Int8";
};

}  // namespace ryx::type

namespace ryx::object {

using Int8 = Primitive<signed char, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<signed char, Object>;

}  // namespace ryx::object
