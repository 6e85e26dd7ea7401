// ryx::object::UInt16: the "ryx.object.UInt16" value, a Primitive<unsigned short, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<unsigned short, object::Object>> {
  static constexpr char const* Value = "ryx.object.UInt16";
};

}  // namespace ryx::type

namespace ryx::object {

using UInt16 = Primitive<unsigned short, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<unsigned short, Object>;

}  // namespace ryx::object
