// ryx::object::enumeration::Dummy: the one enumeration that C callers see,
// "ryx.object.enum.Dummy", with 16-bit unsigned values. Its name is only
// hashed for Enum's typed access; it is not a registered type.
#pragma once

#include <ryx/type/name.hpp>

#include <cstdint>

namespace ryx::object::enumeration {

enum class Dummy : std::uint16_t {};

}  // namespace ryx::object::enumeration

namespace ryx::type {

template <>
struct Name<object::enumeration::Dummy> {
  static constexpr char const* Value = "ryx.object.enum.Dummy";
};

}  // namespace ryx::type
