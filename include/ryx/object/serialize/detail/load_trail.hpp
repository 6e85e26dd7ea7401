// detail::LoadTrail and detail::TrailStep: the path of the value a load
// through cereal's archives is reading, so that a failure deep in a document
// can say where it happened.
//
// The outermost Load (and each From... function) keeps a trail; a container
// loading a child takes a step named by the child's index or key for as long
// as the child loads. When a child's load fails, the innermost step the
// failure leaves records how deep it was; the trail then holds the failing
// value's path until the outermost Load attaches it to the exception (see
// location.hpp). A step taken after a failure, by a load that caught it and
// went on, forgets it.
#pragma once

#include <ryx/object/export.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace ryx::object::detail {

class RYX_OBJECT_EXPORT LoadTrail {
 public:
  // The thread's trail, or null outside a load.
  static LoadTrail* Current() noexcept;

  // Becomes the thread's trail until destroyed.
  LoadTrail() noexcept;
  LoadTrail(LoadTrail const&) = delete;
  LoadTrail& operator=(LoadTrail const&) = delete;
  ~LoadTrail();

  // The JSON Pointer of the value whose load failed: "" for the value the
  // trail began with.
  std::string FailedPath() const;

 private:
  friend class TrailStep;

 public:
  struct Segment {
    bool isKey;
    std::size_t index;
    std::string key;
  };

 private:
  LoadTrail* const previous;
  std::vector<Segment> segments;
  std::size_t depth = 0;
  std::size_t failedDepth = 0;  // segments that lead to the failed value
};

class RYX_OBJECT_EXPORT TrailStep {
 public:
  // The child at `index` of an array, or under `key` (a dictionary's key, a
  // record's member). Nothing outside a load.
  explicit TrailStep(std::size_t index);
  explicit TrailStep(std::string const& key);
  TrailStep(TrailStep const&) = delete;
  TrailStep& operator=(TrailStep const&) = delete;
  ~TrailStep();

 private:
  void Enter(LoadTrail::Segment segment);

  LoadTrail* const trail;
  std::size_t level = 0;
  int exceptions = 0;
};

}  // namespace ryx::object::detail
