#include <ryx/logging.h>

#include "sink.hpp"

#include <mutex>
#include <shared_mutex>

namespace ryx::logging::detail {

namespace {

// Logging threads share the lock while a sink runs; replacing the sink takes
// it exclusively, so a replaced sink is never called after the replacement
// returns. Only the logging path takes it.
struct Sink {
  std::shared_mutex mutex;
  RyxLoggingSink function = nullptr;
  void* context = nullptr;
};

Sink& GetSink() {
  static Sink sink;
  return sink;
}

// Set while this thread runs a sink: a message it logs then goes to stderr
// rather than back into the sink (and into the lock).
thread_local bool insideSink = false;

}  // namespace

bool Deliver(char const* logger, int level, char const* message) {
  if (insideSink) {
    return false;
  }
  Sink& sink = GetSink();
  std::shared_lock<std::shared_mutex> const lock(sink.mutex);
  if (sink.function == nullptr) {
    return false;
  }
  insideSink = true;
  sink.function(logger, level, message, sink.context);
  insideSink = false;
  return true;
}

}  // namespace ryx::logging::detail

extern "C" void RyxLoggingSetSink(RyxLoggingSink sink, void* context) {
  auto& state = ryx::logging::detail::GetSink();
  std::unique_lock<std::shared_mutex> const lock(state.mutex);
  state.function = sink;
  state.context = sink != nullptr ? context : nullptr;
}
