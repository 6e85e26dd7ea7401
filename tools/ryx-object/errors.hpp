// How a run of ryx-object ends when it fails.
//
// A UsageError is the caller's mistake on the command line (exit status 2);
// SilentFailure ends with status 1 and no further message, the command having
// said all there was (check --strict) or being asked to say nothing (check
// --quiet); any other exception is a bad document or a failed operation (exit
// status 1).
#pragma once

#include <stdexcept>

namespace ryx::object::tool {

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct SilentFailure {};

}  // namespace ryx::object::tool
