// The kinds the library serializes: X(Kind) for each. Every form source
// instantiates the save and load functions of each kind listed here.
#pragma once

#include <ryx/object/array.hpp>
#include <ryx/object/bool.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/enum.hpp>
#include <ryx/object/pointer.hpp>
#include <ryx/object/double.hpp>
#include <ryx/object/float.hpp>
#include <ryx/object/int16.hpp>
#include <ryx/object/int32.hpp>
#include <ryx/object/int64.hpp>
#include <ryx/object/int8.hpp>
#include <ryx/object/string.hpp>
#include <ryx/object/uint16.hpp>
#include <ryx/object/uint32.hpp>
#include <ryx/object/uint64.hpp>
#include <ryx/object/uint8.hpp>

namespace ryx::object::detail {

// Names without commas, for the list below.
using ArrayKind = Array<Object>;
using DictionaryKind = Dictionary<Object>;
using EnumKind = Enum<Object>;
using PointerKind = Pointer<Object, void>;
using ConstPointerKind = Pointer<Object, void const>;

}  // namespace ryx::object::detail

#define RYX_OBJECT_SERIALIZED_KINDS(X)                                                     \
  X(Bool)                                                                                  \
  X(Int8)                                                                                  \
  X(Int16)                                                                                 \
  X(Int32)                                                                                 \
  X(Int64)                                                                                 \
  X(UInt8) X(UInt16) X(UInt32) X(UInt64) X(Float) X(Double) X(String) X(detail::ArrayKind) \
      X(detail::DictionaryKind) X(detail::EnumKind) X(detail::PointerKind)                 \
          X(detail::ConstPointerKind)
