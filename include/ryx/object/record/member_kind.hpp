// The C++ types a record's members may have, and the library's kind that
// stands for each: the C++ type of one of the primitive kinds (bool, the eight
// integers, float, double) or std::string, a std::vector of one of those, or
// a child value, std::shared_ptr<Object>.
#pragma once

#include <ryx/object/bool.hpp>
#include <ryx/object/double.hpp>
#include <ryx/object/float.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/object/int16.hpp>
#include <ryx/object/int32.hpp>
#include <ryx/object/int64.hpp>
#include <ryx/object/int8.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/object/string.hpp>
#include <ryx/object/uint16.hpp>
#include <ryx/object/uint32.hpp>
#include <ryx/object/uint64.hpp>
#include <ryx/object/uint8.hpp>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace ryx::object::record {

template <class T>
inline constexpr bool IsScalar =
    std::is_same_v<T, bool> || std::is_same_v<T, signed char> || std::is_same_v<T, short> ||
    std::is_same_v<T, int> || std::is_same_v<T, long> || std::is_same_v<T, unsigned char> ||
    std::is_same_v<T, unsigned short> || std::is_same_v<T, unsigned int> ||
    std::is_same_v<T, unsigned long> || std::is_same_v<T, float> || std::is_same_v<T, double> ||
    std::is_same_v<T, std::string>;

template <class T>
inline constexpr bool IsList = false;
template <class T>
inline constexpr bool IsList<std::vector<T>> = IsScalar<T>;

template <class T>
inline constexpr bool IsChild = std::is_same_v<T, std::shared_ptr<Object>>;

template <class T>
inline constexpr bool IsMemberType = IsScalar<T> || IsList<T> || IsChild<T>;

// The primitive kind of a scalar: Primitive<int, Object> ("ryx.object.Int32")
// for int, and so on.
template <class T>
using KindOf = Primitive<T, Object>;

}  // namespace ryx::object::record
