// ryx::object::Int16: the "ryx.object.Int16" value, a Primitive<short, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<short, object::Object>> {
  static constexpr char const* Value = "ryx.object.Int16";
};

}  // namespace ryx::type

namespace ryx::object {

using Int16 = Primitive<short, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<short, Object>;

}  // namespace ryx::object
