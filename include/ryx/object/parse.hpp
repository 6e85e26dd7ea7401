// ryx::object::Parse<T>: the text-to-number conversion a primitive uses when it
// takes its value from a string value.
//
// Integers and floating point numbers follow the standard conversions (leading
// white space skipped, a sign accepted, the longest valid number at the start
// taken, the rest ignored) and add a range check for the narrower integer
// types. Booleans accept text starting with true, 1, false or 0 after white
// space. Failures throw std::invalid_argument or std::out_of_range with a
// message that quotes the text. Defined for bool, the eight integer types,
// float and double, each beside its value kind.
#pragma once

#include <ryx/object/export.hpp>

#include <string>

namespace ryx::object {

template <class T>
T Parse(std::string const& text);

template <>
RYX_OBJECT_EXPORT bool Parse<bool>(std::string const& text);
template <>
RYX_OBJECT_EXPORT signed char Parse<signed char>(std::string const& text);
template <>
RYX_OBJECT_EXPORT short Parse<short>(std::string const& text);
template <>
RYX_OBJECT_EXPORT int Parse<int>(std::string const& text);
template <>
RYX_OBJECT_EXPORT long Parse<long>(std::string const& text);
template <>
RYX_OBJECT_EXPORT unsigned char Parse<unsigned char>(std::string const& text);
template <>
RYX_OBJECT_EXPORT unsigned short Parse<unsigned short>(std::string const& text);
template <>
RYX_OBJECT_EXPORT unsigned int Parse<unsigned int>(std::string const& text);
template <>
RYX_OBJECT_EXPORT unsigned long Parse<unsigned long>(std::string const& text);
template <>
RYX_OBJECT_EXPORT float Parse<float>(std::string const& text);
template <>
RYX_OBJECT_EXPORT double Parse<double>(std::string const& text);

}  // namespace ryx::object
