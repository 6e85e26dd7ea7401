#include <ryx/object/serialize/detail/load_trail.hpp>

#include <exception>
#include <utility>

#include "object/detail/json_pointer.hpp"

namespace ryx::object::detail {

namespace {

// A plain pointer: a thread_local object with a destructor would need the C
// runtime to register it, which can end the process when memory is short.
thread_local LoadTrail* current = nullptr;

}  // namespace

LoadTrail* LoadTrail::Current() noexcept { return current; }

LoadTrail::LoadTrail() noexcept : previous(current) { current = this; }

LoadTrail::~LoadTrail() { current = previous; }

std::string LoadTrail::FailedPath() const {
  std::string path;
  for (std::size_t level = 0; level != failedDepth && level != segments.size(); ++level) {
    Segment const& segment = segments[level];
    if (segment.isKey) {
      AppendPointerKey(path, segment.key);
    } else {
      AppendPointerIndex(path, segment.index);
    }
  }
  return path;
}

TrailStep::TrailStep(std::size_t index) : trail(LoadTrail::Current()) {
  if (trail != nullptr) {
    Enter(LoadTrail::Segment{false, index, {}});
  }
}

TrailStep::TrailStep(std::string const& key) : trail(LoadTrail::Current()) {
  if (trail != nullptr) {
    Enter(LoadTrail::Segment{true, 0, key});
  }
}

// The step counts only once its segment is in place: a failed push leaves
// the trail as it was.
void TrailStep::Enter(LoadTrail::Segment segment) {
  level = trail->depth;
  trail->segments.resize(level);
  trail->segments.push_back(std::move(segment));
  exceptions = std::uncaught_exceptions();
  trail->failedDepth = 0;
  ++trail->depth;
}

// The first step an exception unwinds is the innermost one alive: the failed
// value is its child. Nothing here allocates: the path is built when asked.
TrailStep::~TrailStep() {
  if (trail == nullptr) {
    return;
  }
  --trail->depth;
  if (std::uncaught_exceptions() > exceptions && trail->failedDepth == 0) {
    trail->failedDepth = level + 1;
  }
}

}  // namespace ryx::object::detail
