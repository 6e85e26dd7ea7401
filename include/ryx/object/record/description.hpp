// ryx::object::record::Member and Description: the type name of a class of
// the user's and the list of its members that <ryx/object/record.hpp> turns
// into a kind of its own.
//
// The class's namespace declares a constexpr function DescribeRecord, found by
// argument-dependent lookup, that returns the Description:
//
//   constexpr auto DescribeRecord(ryx::type::Tag<Task>) {
//     using ryx::object::record::Member;
//     return ryx::object::record::Description("todo.Task", Member("title", &Task::title),
//                                             Member("priority", &Task::priority));
//   }
//
// The type name is the kind's dotted name (its type id follows from it); each
// member is the name it has in every form and the C++ member it is. Members
// are saved, loaded, copied and compared in the order listed.
#pragma once

#include <ryx/object/record/member_kind.hpp>
#include <ryx/type/tag.hpp>

#include <cstddef>
#include <tuple>

namespace ryx::object {

template <class T>
class Record;

}  // namespace ryx::object

namespace ryx::object::record {

template <class C, class T>
struct Member {
  using Class = C;
  using Type = T;

  constexpr Member(char const* name, T C::*pointer) noexcept : name(name), pointer(pointer) {}

  char const* name;
  T C::*pointer;
};

template <class C, class... T>
struct Description {
  constexpr explicit Description(char const* typeName, Member<C, T>... members) noexcept
      : typeName(typeName), members(members...) {}

  char const* typeName;
  std::tuple<Member<C, T>...> members;
};

namespace detail {

constexpr bool SameText(char const* a, char const* b) noexcept {
  while (*a != '\0' && *a == *b) {
    ++a;
    ++b;
  }
  return *a == *b;
}

// Every name is a member of the form beside "typename", so none may be empty,
// "typename" or taken twice.
template <class Members, std::size_t... I>
constexpr bool NamesAreUsable(Members const& members, std::index_sequence<I...>) noexcept {
  char const* const names[] = {"typename", std::get<I>(members).name...};
  for (std::size_t i = 1; i != sizeof...(I) + 1; ++i) {
    if (*names[i] == '\0') {
      return false;
    }
    for (std::size_t j = 0; j != i; ++j) {
      if (SameText(names[i], names[j])) {
        return false;
      }
    }
  }
  return true;
}

}  // namespace detail

// The description of T, from the DescribeRecord of T's namespace.
template <class T>
inline constexpr auto DescriptionOf = DescribeRecord(type::Tag<T>());

template <class T>
inline constexpr std::size_t MemberCount = std::tuple_size_v<decltype(DescriptionOf<T>.members)>;

template <class T, class Description = std::remove_const_t<decltype(DescriptionOf<T>)>>
struct Checked;

template <class T, class C, class... M>
struct Checked<T, Description<C, M...>> {
  static_assert(std::is_same_v<C, T>, "the members of a record must be members of the record's class");
  static_assert((IsMemberType<M> && ...),
                "a record's members may be bool, signed char, short, int, long, unsigned char, "
                "unsigned short, unsigned int, unsigned long, float, double, std::string, a "
                "std::vector of one of those, or std::shared_ptr<ryx::object::Object>");
  static_assert(detail::NamesAreUsable(DescriptionOf<T>.members,
                                       std::make_index_sequence<sizeof...(M)>()),
                "a record's member names must be distinct, not empty and not \"typename\"");
  static constexpr bool value = true;
};

// Calls f(member) for each member of T's description, in order.
template <class T, class F>
constexpr void ForEachMember(F&& f) {
  std::apply([&](auto const&... member) { (f(member), ...); }, DescriptionOf<T>.members);
}

}  // namespace ryx::object::record
