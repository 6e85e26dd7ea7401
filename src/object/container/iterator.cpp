#include <ryx/object/container/iterator.hpp>

#include <ostream>

namespace ryx::object::container {

Iterator::operator ConstIterator() const {
  if (!next_func) {
    return ConstIterator(nullptr, current);
  }
  return ConstIterator([next = next_func]() -> std::shared_ptr<Object const> { return next(); },
                       current);
}

std::ostream& operator<<(std::ostream& os, Iterator const& it) {
  return os << "{\"next_func\":" << (it.next_func ? "true" : "false")
            << ",\"current\":" << static_cast<void const*>(it.current.get()) << '}';
}

}  // namespace ryx::object::container
