// ryx::object::container::ConstIterator: a type-erased, read-only forward
// iterator over the children of any value.
//
// It holds a generator (which yields the next child, or null at the end) and
// the child it stands on. Two iterators are equal when they stand on the same
// object; every end iterator stands on null. The generators made by Begin/End
// hold only two cursors, which fit in std::function's own storage: building,
// copying and advancing them allocates nothing.
#pragma once

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

class RYX_OBJECT_EXPORT ConstIterator {
public:
  using NextFunction = std::function<std::shared_ptr<Object const>()>;

  using iterator_category = std::forward_iterator_tag;
  using value_type = Object;
  using difference_type = std::ptrdiff_t;
  using pointer = std::shared_ptr<Object const>;
  using reference = Object const&;

  ConstIterator() noexcept = default;
  ConstIterator(NextFunction next_func, std::shared_ptr<Object const> current) noexcept
      : next_func(std::move(next_func)), current(std::move(current)) {}
  ConstIterator(ConstIterator const&) = default;
  ConstIterator(ConstIterator&& other) noexcept
      : next_func(std::exchange(other.next_func, nullptr)), current(std::move(other.current)) {}
  ConstIterator& operator=(ConstIterator other) noexcept {
    swap(*this, other);
    return *this;
  }

  explicit operator bool() const noexcept { return current != nullptr; }
  bool operator==(ConstIterator const& other) const noexcept { return current == other.current; }
  bool operator!=(ConstIterator const& other) const noexcept { return current != other.current; }

  // Only on an iterator that stands on an object.
  Object const& operator*() const noexcept { return *current; }
  std::shared_ptr<Object const> operator->() const noexcept { return current; }

  // An iterator at its end stays there.
  ConstIterator& operator++() noexcept {
    current = current && next_func ? next_func() : nullptr;
    return *this;
  }
  ConstIterator operator++(int) noexcept {
    ConstIterator previous(*this);
    ++*this;
    return previous;
  }

  friend void swap(ConstIterator& a, ConstIterator& b) noexcept {
    a.next_func.swap(b.next_func);
    a.current.swap(b.current);
  }

  // {"next_func":true|false,"current":<address>}
  friend RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, ConstIterator const& it);

private:
  NextFunction next_func;
  std::shared_ptr<Object const> current;
};

namespace detail {

// Whether C is a sequence of, or a map onto, shared pointers to objects.
template <class C, class = void>
struct IsObjectSequence : std::false_type {};
template <class C>
struct IsObjectSequence<C, std::void_t<decltype(*std::declval<C&>().begin())>>
    : std::is_convertible<decltype(*std::declval<C&>().begin()), std::shared_ptr<Object>> {};

template <class C, class = void>
struct IsObjectMap : std::false_type {};
template <class C>
struct IsObjectMap<C, std::void_t<decltype(std::declval<C&>().begin()->second)>>
    : std::is_convertible<decltype(std::declval<C&>().begin()->second), std::shared_ptr<Object>> {};

// Reads the object a cursor of a sequence or a map stands on.
struct ElementOf {
  template <class It>
  auto const& operator()(It const& it) const {
    return *it;
  }
};
struct ValueOf {
  template <class It>
  auto const& operator()(It const& it) const {
    return it->second;
  }
};

// Iterator of element type Result over [first, last): stands on the first
// element; each step moves the cursor, then yields the element or null.
template <class Iterator, class Result, class Read, class It>
Iterator Walk(It first, It last) {
  Result current = first == last ? nullptr : Result(Read()(first));
  return Iterator(
      [cursor = first, last]() mutable -> Result {
        if (cursor == last || ++cursor == last) {
          return nullptr;
        }
        return Read()(cursor);
      },
      std::move(current));
}

}  // namespace detail

// Read-only walk over a sequence of objects, in order.
template <class C, std::enable_if_t<detail::IsObjectSequence<C const>::value, int> = 0>
ConstIterator Begin(C const& c) {
  return detail::Walk<ConstIterator, std::shared_ptr<Object const>, detail::ElementOf>(c.begin(),
                                                                                      c.end());
}

// Read-only walk over the values of a map, in the map's own order.
template <class M, std::enable_if_t<detail::IsObjectMap<M const>::value, int> = 0>
ConstIterator Begin(M const& m) {
  return detail::Walk<ConstIterator, std::shared_ptr<Object const>, detail::ValueOf>(m.begin(),
                                                                                    m.end());
}

// The end of a map walk: a generator that yields nothing, standing on null.
template <class M, std::enable_if_t<detail::IsObjectMap<M const>::value, int> = 0>
ConstIterator End(M const&) {
  return ConstIterator([]() -> std::shared_ptr<Object const> { return nullptr; }, nullptr);
}

}  // namespace ryx::object::container
