// ryx::object::Adaptor: an assignable reference to a std::shared_ptr<Object>
// slot held elsewhere (for example a container's element) that refuses null.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <iosfwd>
#include <memory>

namespace ryx::object {

class RYX_OBJECT_EXPORT Adaptor {
public:
  explicit Adaptor(std::shared_ptr<Object>& slot) noexcept : slot(&slot) {}
  Adaptor(Adaptor&& other) noexcept : slot(other.slot) { other.slot = nullptr; }
  Adaptor(Adaptor const&) = delete;
  ~Adaptor() = default;

  Adaptor& operator=(Adaptor other) noexcept {
    swap(*this, other);
    return *this;
  }

  // Stores `object` in the slot. Throws std::invalid_argument for null and
  // std::logic_error once the adaptor has been moved from; the slot is then
  // unchanged. No schema is consulted.
  Adaptor& operator=(std::shared_ptr<Object> object);

  // Throws std::logic_error unless the slot exists and holds an object.
  void Check() const;

  friend void swap(Adaptor& a, Adaptor& b) noexcept {
    std::shared_ptr<Object>* const mine = a.slot;
    a.slot = b.slot;
    b.slot = mine;
  }

  // "null", or the object's own text form.
  friend RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, Adaptor const& adaptor);

private:
  std::shared_ptr<Object>* slot;
};

}  // namespace ryx::object
