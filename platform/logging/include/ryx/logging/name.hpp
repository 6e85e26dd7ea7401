// ryx::logging::Name: the dotted name of a logger, such as "ryx.object".
#pragma once

#include <ryx/logging/export.hpp>

#include <string>

namespace ryx::logging {

class RYX_LOGGING_EXPORT Name {
 public:
  // A null text gives the empty name.
  explicit Name(char const* value) : value(value != nullptr ? value : "") {}

  std::string const& GetValue() const noexcept { return value; }

 private:
  std::string value;
};

}  // namespace ryx::logging
