// detail::JsonKind: which of the library's own kinds a registry record's JSON
// save or load function belongs to.
//
// The direct JSON writer and reader handle a value themselves only when its
// record holds the library's own function for the kind; `none` stands for a
// record without the function, `other` for a function of someone else's,
// which only the archive can run.
#pragma once

#include <ryx/object/registry/info.hpp>

#include <cstdint>

namespace ryx::object::detail {

enum class JsonKind : std::uint8_t {
  none,
  other,
  Bool,
  Int8,
  Int16,
  Int32,
  Int64,
  UInt8,
  UInt16,
  UInt32,
  UInt64,
  Float,
  Double,
  String,
  Array,
  Dictionary,
  Enum,
  Pointer,
  ConstPointer,
};

struct JsonKinds {
  JsonKind save = JsonKind::none;
  JsonKind load = JsonKind::none;
};

JsonKinds ClassifyJson(registry::Info const& info);

}  // namespace ryx::object::detail
