// Failure reports of the C functions: one message to the logger "ryx.object"
// at level 16 per failure. `function` is always the reporting C function's
// exported name.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/logging/level.hpp>
#include <ryx/logging/logger.hpp>
#include <ryx/logging/name.hpp>
#include <ryx/object.h>
#include <ryx/object/object.hpp>

namespace ryx::object::capi::detail {

inline constexpr char const* LoggerName = "ryx.object";
inline constexpr logging::Level FailureLevel = static_cast<logging::Level>(16);

template <class... Args>
void Report(char const* format, Args const&... args) noexcept {
  logging::Logger const logger{logging::Name(LoggerName)};
  logger.Log(FailureLevel, format, args...);
}

// "<function>: the <parameter> parameter was NULL"; answers
// RyxObjectStatusInvalidParameter.
RyxObjectStatus ReportNullParameter(char const* function, char const* parameter) noexcept;

// "<function>: the object parameter was not a <expected>: <actual>", with the
// registered names of both types; answers RyxObjectStatusIncorrectType.
RyxObjectStatus ReportIncorrectType(char const* function, hash::MurmurThree32 const& expected,
                                    Object const& actual) noexcept;

// "<function>: <action>: <what()>" for the exception being handled, or
// "<function>: <action>: generic exception object" when it is not a
// std::exception. Call only from inside a catch block.
void ReportCurrentException(char const* function, char const* action) noexcept;

}  // namespace ryx::object::capi::detail
