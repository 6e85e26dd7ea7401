// ryx::object::Int64: the "ryx.object.Int64" value, a Primitive<long, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<long, object::Object>> {
  static constexpr char const* Value = "ryx.object.Int64";
};

}  // namespace ryx::type

namespace ryx::object {

using Int64 = Primitive<long, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<long, Object>;

}  // namespace ryx::object
