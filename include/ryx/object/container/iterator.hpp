// ryx::object::container::Iterator: the mutable counterpart of ConstIterator.
//
// Same behaviour, with non-const elements; it converts to a ConstIterator that
// stands on the same element and advances independently.
#pragma once

#include <ryx/object/container/const_iterator.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>

namespace ryx::object::container {

class RYX_OBJECT_EXPORT Iterator {
public:
  using NextFunction = std::function<std::shared_ptr<Object>()>;

  using iterator_category = std::forward_iterator_tag;
  using value_type = Object;
  using difference_type = std::ptrdiff_t;
  using pointer = std::shared_ptr<Object>;
  using reference = Object&;

  Iterator() noexcept = default;
  Iterator(NextFunction next_func, std::shared_ptr<Object> current) noexcept
      : next_func(std::move(next_func)), current(std::move(current)) {}
  Iterator(Iterator const&) = default;
  Iterator(Iterator&& other) noexcept
      : next_func(std::exchange(other.next_func, nullptr)), current(std::move(other.current)) {}
  Iterator& operator=(Iterator other) noexcept {
    swap(*this, other);
    return *this;
  }

  explicit operator bool() const noexcept { return current != nullptr; }
  bool operator==(Iterator const& other) const noexcept { return current == other.current; }
  bool operator!=(Iterator const& other) const noexcept { return current != other.current; }

  // Only on an iterator that stands on an object.
  Object& operator*() const noexcept { return *current; }
  std::shared_ptr<Object> operator->() const noexcept { return current; }

  // An iterator at its end stays there.
  Iterator& operator++() noexcept {
    current = current && next_func ? next_func() : nullptr;
    return *this;
  }
  Iterator operator++(int) noexcept {
    Iterator previous(*this);
    ++*this;
    return previous;
  }

  // The wrapped generator is a whole std::function, so the result allocates.
  operator ConstIterator() const;

  friend void swap(Iterator& a, Iterator& b) noexcept {
    a.next_func.swap(b.next_func);
    a.current.swap(b.current);
  }

  // {"next_func":true|false,"current":<address>}
  friend RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, Iterator const& it);

private:
  NextFunction next_func;
  std::shared_ptr<Object> current;
};

// Walk over a sequence of objects, in order.
template <class C,
          std::enable_if_t<!std::is_const_v<C> && detail::IsObjectSequence<C>::value, int> = 0>
Iterator Begin(C& c) {
  return detail::Walk<Iterator, std::shared_ptr<Object>, detail::ElementOf>(c.begin(), c.end());
}

// Walk over the values of a map, in the map's own order.
template <class M, std::enable_if_t<!std::is_const_v<M> && detail::IsObjectMap<M>::value, int> = 0>
Iterator Begin(M& m) {
  return detail::Walk<Iterator, std::shared_ptr<Object>, detail::ValueOf>(m.begin(), m.end());
}

// The end of a map walk: a generator that yields nothing, standing on null.
template <class M, std::enable_if_t<!std::is_const_v<M> && detail::IsObjectMap<M>::value, int> = 0>
Iterator End(M&) {
  return Iterator([]() -> std::shared_ptr<Object> { return nullptr; }, nullptr);
}

}  // namespace ryx::object::container
