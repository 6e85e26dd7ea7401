// The process-wide sink behind RyxLoggingSetSink.
#pragma once

namespace ryx::logging::detail {

// Passes the message to the sink and returns true, or returns false when no
// sink is set (or when called from inside a sink) so that the caller writes it.
bool Deliver(char const* logger, int level, char const* message);

}  // namespace ryx::logging::detail
