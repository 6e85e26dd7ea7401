#include <ryx/object/adaptor.hpp>

#include <ryx/object/object.hpp>

#include <ostream>
#include <stdexcept>
#include <utility>

namespace ryx::object {

Adaptor& Adaptor::operator=(std::shared_ptr<Object> object) {
  if (!object) {
    throw std::invalid_argument("Cannot assigned null object pointers into a container");
  }
  if (slot == nullptr) {
    throw std::logic_error("The adaptor pointer has been released");
  }
  *slot = std::move(object);
  return *this;
}

void Adaptor::Check() const {
  if (slot == nullptr || !*slot) {
    throw std::logic_error("The adaptor pointer has been released");
  }
}

std::ostream& operator<<(std::ostream& os, Adaptor const& adaptor) {
  if (adaptor.slot == nullptr || !*adaptor.slot) {
    return os << "null";
  }
  return os << **adaptor.slot;
}

}  // namespace ryx::object
