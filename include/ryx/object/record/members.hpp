// What a record does with its members as a whole: copy them deeply, compare
// them, and find its children among them.
#pragma once

#include <ryx/object/detail/nesting_guard.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/record/description.hpp>
#include <ryx/object/record/forms.hpp>
#include <ryx/object/record/member_kind.hpp>

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace ryx::object::record::detail {

template <class T>
inline constexpr std::size_t ChildCount = std::apply(
    [](auto const&... member) {
      return (std::size_t(0) + ... +
              std::size_t(IsChild<typename std::decay_t<decltype(member)>::Type>));
    },
    DescriptionOf<T>.members);

// A deep copy of one member's value.
template <class V>
V CopyOf(V const& value, char const* name) {
  if constexpr (IsChild<V>) {
    if (!value) {
      return nullptr;
    }
    std::shared_ptr<Object> copy = Object::Copy(*value);
    if (!copy) {
      char const* const type = Object::TypeName(value->GetType());
      throw std::runtime_error(std::string("Failed to copy the member '") + name + "' of type " +
                               (type != nullptr ? type : NotRegistered));
    }
    return copy;
  } else {
    static_cast<void>(name);
    return value;
  }
}

template <class T, std::size_t... I>
void CopyMembers(T const& from, Staged<T>& to, std::index_sequence<I...>) {
  ((std::get<I>(to) = CopyOf(from.*(std::get<I>(DescriptionOf<T>.members).pointer),
                             std::get<I>(DescriptionOf<T>.members).name)),
   ...);
}

// Copies every member of `from` into `to`, children deeply; `to` is changed
// only once every copy was made.
template <class T>
void CopyRecord(T const& from, T& to) {
  Staged<T> staged;
  if constexpr (ChildCount<T> != 0) {
    object::detail::NestingGuard const level(object::detail::Nesting::copy);
    CopyMembers(from, staged, std::make_index_sequence<MemberCount<T>>());
  } else {
    CopyMembers(from, staged, std::make_index_sequence<MemberCount<T>>());
  }
  Commit(to, staged);
}

// Children are equal when both are null, or both of one type and EqualTo.
template <class V>
bool Equal(V const& a, V const& b) {
  if constexpr (IsChild<V>) {
    if (!a || !b) {
      return a == b;
    }
    return a->GetType() == b->GetType() && a->EqualTo(*b);
  } else {
    return a == b;
  }
}

template <class T>
bool EqualRecords(T const& a, T const& b) {
  bool equal = true;
  auto const compare = [&] {
    ForEachMember<T>([&](auto const& member) {
      equal = equal && Equal(a.*(member.pointer), b.*(member.pointer));
    });
  };
  if constexpr (ChildCount<T> != 0) {
    object::detail::NestingGuard const level(object::detail::Nesting::comparison);
    compare();
  } else {
    compare();
  }
  return equal;
}

// The slot of the child member number `index` (counting children only), or
// null past the last.
template <class T>
std::shared_ptr<Object> const* ChildSlot(T const& value, std::size_t index) noexcept {
  std::shared_ptr<Object> const* slot = nullptr;
  std::size_t at = 0;
  ForEachMember<T>([&](auto const& member) {
    if constexpr (IsChild<typename std::decay_t<decltype(member)>::Type>) {
      if (at++ == index) {
        slot = &(value.*(member.pointer));
      }
    }
  });
  return slot;
}

}  // namespace ryx::object::record::detail
