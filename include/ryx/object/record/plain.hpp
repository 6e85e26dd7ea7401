// The plain JSON form of a record: a Dictionary of its members, each as the
// library's kind for its C++ type (int as an Int32, std::string as a String,
// a std::vector as an Array whose element schema is that kind, a child as it
// is, a null child as a null entry).
//
// Reading takes the values plain JSON builds (an integer as an Int64, or a
// UInt64 above Int64's range; any other number as a Double) and fits each to
// its member: an integer only when the member's type holds it exactly (Int8
// from 300 is refused, never wrapped), a Double or Float (a number written
// with a fraction or an exponent) never into an integer, a number into float only within float's range, a Bool only into
// bool, a String only into std::string, an Array element by element under the
// same rules, and a child member takes any value, or null, as it is. A
// missing member and a member the record does not describe are refused. Every
// refusal is std::invalid_argument naming the member, and leaves the record
// as it was.
#pragma once

#include <ryx/object/array.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/record/description.hpp>
#include <ryx/object/record/forms.hpp>
#include <ryx/object/record/member_kind.hpp>
#include <ryx/object/required.hpp>

#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ryx::object::record::detail {

// The value of a member as plain JSON holds it.
template <class V>
std::shared_ptr<Object> ToPlain(V const& value) {
  if constexpr (IsChild<V>) {
    return value;
  } else if constexpr (IsList<V>) {
    using Item = typename V::value_type;
    Array<Object>::Objects items;
    items.reserve(value.size());
    for (auto const& item : value) {
      items.push_back(std::make_shared<KindOf<Item>>(static_cast<Item>(item)));
    }
    return std::make_shared<Array<Object>>(Required(Object::TypeIdOf<KindOf<Item>>()),
                                           std::move(items));
  } else {
    return std::make_shared<KindOf<V>>(value);
  }
}

template <class T>
std::shared_ptr<Object const> SavePlain(Object const& object) {
  T const& value = object.As<Record<T>>();
  auto plain = std::make_shared<Dictionary<Object>>();
  plain->Reserve(MemberCount<T>);
  ForEachMember<T>([&](auto const& member) {
    std::shared_ptr<Object> memberValue = ToPlain(value.*(member.pointer));
    if (memberValue) {
      plain->Assign(member.name, std::move(memberValue));
    } else {
      // A dictionary holds a null entry only in a slot made for a value.
      plain->Assign(member.name, std::make_shared<Bool>());
      *plain->GetSlot(member.name) = nullptr;
    }
  });
  return plain;
}

[[noreturn]] inline void Refuse(std::string const& where, std::string const& problem) {
  throw std::invalid_argument(where + ": " + problem);
}

inline std::string KindName(Object const* value) {
  if (value == nullptr) {
    return "null";
  }
  char const* const name = Object::TypeName(value->GetType());
  return name != nullptr ? name : NotRegistered;
}

template <class N>
std::string NumberText(N number) {
  std::ostringstream text;
  text << +number;
  return text.str();
}

// Whether the integer `number` has a value of the integer type To. Both are
// widened first, so that no comparison depends on the pair of types.
template <class To, class From>
constexpr bool HoldsInteger(From number) noexcept {
  using Limits = std::numeric_limits<To>;
  if constexpr (std::is_signed_v<From>) {
    long long const wide = number;
    if (wide < 0) {
      return std::is_signed_v<To> && wide >= static_cast<long long>(Limits::min());
    }
    return static_cast<unsigned long long>(wide) <= static_cast<unsigned long long>(Limits::max());
  } else {
    return static_cast<unsigned long long>(number) <=
           static_cast<unsigned long long>(Limits::max());
  }
}

// Fits the number `number` to the arithmetic member type V, or refuses it.
template <class V, class N>
V FitNumber(N number, std::string const& where) {
  using Target = KindOf<V>;
  if constexpr (std::is_floating_point_v<V>) {
    if constexpr (std::is_same_v<V, float> && std::is_floating_point_v<N>) {
      if (std::isfinite(number) && std::fabs(number) > std::numeric_limits<float>::max()) {
        Refuse(where, NumberText(number) + " is out of the range of " + type::Name<Target>::Value);
      }
    }
    return static_cast<V>(number);
  } else if constexpr (std::is_floating_point_v<N>) {
    // As plain JSON reads it, a number with a fraction or an exponent never
    // fills an integer, whatever its value.
    Refuse(where, std::string(type::Name<Target>::Value) + " takes integers only, not the number " +
                      NumberText(number));
  } else {
    if (!HoldsInteger<V>(number)) {
      Refuse(where, NumberText(number) + " is out of the range of " + type::Name<Target>::Value);
    }
    return static_cast<V>(number);
  }
}

// Tries each numeric kind N in turn as the kind of `plain`.
template <class V, class... N>
bool FitAnyNumber(Object const& plain, V& value, std::string const& where) {
  return ((plain.Is<KindOf<N>>() &&
           (value = FitNumber<V>(plain.As<KindOf<N>>().Get(), where), true)) ||
          ...);
}

template <class V>
void FromPlain(std::shared_ptr<Object> const& plain, V& value, std::string const& where) {
  if constexpr (IsChild<V>) {
    // Plain values are built to be taken: the child shares the value read.
    static_cast<void>(where);
    value = plain;
  } else {
    bool fits = false;
    if constexpr (IsList<V>) {
      using Item = typename V::value_type;
      if (plain != nullptr && plain->Is<Array<Object>>()) {
        auto const& items = plain->As<Array<Object>>().GetObjects();
        V list;
        list.reserve(items.size());
        for (std::size_t index = 0; index != items.size(); ++index) {
          Item item{};
          FromPlain(items[index], item, where + ", element " + std::to_string(index));
          list.push_back(std::move(item));
        }
        value = std::move(list);
        fits = true;
      }
    } else if constexpr (std::is_same_v<V, bool> || std::is_same_v<V, std::string>) {
      if (plain != nullptr && plain->Is<KindOf<V>>()) {
        value = plain->As<KindOf<V>>().Get();
        fits = true;
      }
    } else if (plain != nullptr) {
      fits = FitAnyNumber<V, long, unsigned long, double, int, unsigned int, short,
                          unsigned short, signed char, unsigned char, float>(*plain, value, where);
    }
    if (!fits) {
      if constexpr (IsList<V>) {
        Refuse(where, "expected ryx.object.Array, found " + KindName(plain.get()));
      } else {
        Refuse(where, std::string("expected ") + type::Name<KindOf<V>>::Value + ", found " +
                          KindName(plain.get()));
      }
    }
  }
}

template <class T, std::size_t... I>
void ReadPlainMembers(Dictionary<Object> const& plain, Staged<T>& staged,
                      std::index_sequence<I...>) {
  auto const read = [&](char const* name, auto& value) {
    std::string const where = std::string("member '") + name + "'";
    auto const& properties = plain.GetProperties();
    auto const found = properties.find(name);
    if (found == properties.end()) {
      Refuse(where, "missing");
    }
    FromPlain(found->second, value, where);
  };
  (read(std::get<I>(DescriptionOf<T>.members).name, std::get<I>(staged)), ...);
}

template <class T>
void LoadPlain(Object& object, Object const& plain) {
  auto& record = object.As<Record<T>>();
  if (!plain.Is<Dictionary<Object>>()) {
    Refuse(type::Name<Record<T>>::Value, "expected an object of members, found " + KindName(&plain));
  }
  auto const& members = plain.As<Dictionary<Object>>();
  for (auto const& entry : members.GetProperties()) {
    bool known = false;
    ForEachMember<T>([&](auto const& member) { known = known || entry.first == member.name; });
    if (!known) {
      Refuse("member '" + entry.first + "'", std::string("unknown to ") +
                                                 type::Name<Record<T>>::Value);
    }
  }
  Staged<T> staged;
  ReadPlainMembers<T>(members, staged, std::make_index_sequence<MemberCount<T>>());
  Commit<T>(record, staged);
}

}  // namespace ryx::object::record::detail
