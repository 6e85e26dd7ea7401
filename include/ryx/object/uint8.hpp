// ryx::object::UInt8: the "ryx.object.UInt8" value, a Primitive<unsigned char, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<unsigned char, object::Object>> {
  static constexpr char const* Value = "ryx.object.UInt8";
};

}  // namespace ryx::type

namespace ryx::object {

using UInt8 = Primitive<unsigned char, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<unsigned char, Object>;

}  // namespace ryx::object
