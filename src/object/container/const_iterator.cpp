#include <ryx/object/container/const_iterator.hpp>

#include <ostream>

namespace ryx::object::container {

std::ostream& operator<<(std::ostream& os, ConstIterator const& it) {
  return os << "{\"next_func\":" << (it.next_func ? "true" : "false")
            << ",\"current\":" << static_cast<void const*>(it.current.get()) << '}';
}

}  // namespace ryx::object::container
