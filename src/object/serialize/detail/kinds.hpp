// The kinds the library serializes: X(Kind) for each. Every form source
// instantiates the save and load functions of each kind listed here.
#pragma once

#include <ryx/object/bool.hpp>
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

#define RYX_OBJECT_SERIALIZED_KINDS(X) \
  X(Bool)                              \
  X(Int8)                              \
  X(Int16) X(Int32) X(Int64) X(UInt8) X(UInt16) X(UInt32) X(UInt64) X(Float) X(Double) X(String)
