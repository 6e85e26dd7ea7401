// ryx::object::Options: the flag set over Option that every Object carries.
#pragma once

#include <ryx/object/option.hpp>
#include <ryx/type/flags.hpp>
#include <ryx/type/name.hpp>

namespace ryx::object {

using Options = type::Flags<Option, unsigned short, 64>;

}  // namespace ryx::object

namespace ryx::type {

template <>
struct Name<object::Options> {
  static constexpr char const* Value = "ryx.object.Options";
};

}  // namespace ryx::type
