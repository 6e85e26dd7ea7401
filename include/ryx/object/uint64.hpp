// ryx::object::UInt64: the "ryx.object.UInt64" value, a Primitive<unsigned long, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<unsigned long, object::Object>> {
  static constexpr char const* Value = "ryx.object.UInt64";
};

}  // namespace ryx::type

namespace ryx::object {

using UInt64 = Primitive<unsigned long, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<unsigned long, Object>;

}  // namespace ryx::object
