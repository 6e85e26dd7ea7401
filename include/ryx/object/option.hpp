// ryx::object::Option: the per-object options.
//
// `deserializing` is set while a load fills a freshly made object, so that the
// object's own deserialization knows its type record was read already.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/type/name.hpp>
#include <ryx/type/strings.hpp>

namespace ryx::object {

enum class Option : unsigned short {
  deserializing = 0,
};

}  // namespace ryx::object

namespace ryx::type {

template <>
struct Name<object::Option> {
  static constexpr char const* Value = "ryx.object.Option";
};

// The one process-wide table: 0 -> "deserializing".
template <>
RYX_OBJECT_EXPORT std::map<unsigned long, std::string> const& Strings<object::Option>::GetMap();

}  // namespace ryx::type
