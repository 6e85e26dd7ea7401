// ryx::logging::Level: the severity of a message, one byte wide.
//
// The values leave gaps so that a library can log between two named levels.
#pragma once

#include <cstdint>

namespace ryx::logging {

enum class Level : std::uint8_t {
  Trace = 0,
  Debug = 4,
  Info = 8,
  Warning = 12,
  Error = 16,
  Fatal = 20,
};

}  // namespace ryx::logging
