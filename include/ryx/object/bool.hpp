// ryx::object::Bool: the "ryx.object.Bool" value, a Primitive<bool, Object>.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/type/name.hpp>

namespace ryx::type {

template <>
struct Name<object::Primitive<bool, object::Object>> {
  static constexpr char const* Value = "ryx.object.Bool";
};

}  // namespace ryx::type

namespace ryx::object {

using Bool = Primitive<bool, Object>;

extern template class RYX_OBJECT_EXPORT Primitive<bool, Object>;

}  // namespace ryx::object
