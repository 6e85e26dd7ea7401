// The save and load functions of a record for each archive: the type record,
// then each member under its name, in the order described.
//
// In the text forms and the template data a scalar member is written as the
// "value" of the primitive kind of its C++ type is, a std::vector as a
// sequence of such values, and a child as a node of its own holding the child
// as Save writes it (a null child as the null record). In the portable binary
// form the members follow the type id without names: scalars and strings as
// the primitive kinds write them, a vector as its 8-byte count and its items,
// a child as Save writes it. Children are loaded through Load, which counts
// their nesting against the nesting limit and the thread's stack.
//
// Loading reads every member into a staged copy and changes the record only
// once all of it was read, so a failed load leaves the record as it was. In
// the text forms a member missing from the document is an error, members it
// does not describe are ignored (as for every kind); a binary stream never
// makes a count or a length allocate ahead of the bytes that back it.
#pragma once

#include <ryx/object/object.hpp>
#include <ryx/object/record/description.hpp>
#include <ryx/object/record/member_kind.hpp>
#include <ryx/object/serialize/detail/binary_fields.hpp>
#include <ryx/object/serialize/detail/xml_text.hpp>
#include <ryx/object/serialize/detail/load_trail.hpp>
#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/save.hpp>
#include <ryx/serialize/archive/json.hpp>
#include <ryx/templating/serialize/archive/output/data.hpp>

#include <cereal/archives/portable_binary.hpp>
#include <cereal/archives/xml.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace ryx::object::record::detail {

template <class Archive>
inline constexpr bool IsBinary = std::is_same_v<Archive, cereal::PortableBinaryOutputArchive> ||
                                 std::is_same_v<Archive, cereal::PortableBinaryInputArchive>;

// A child in a node of its own.
struct SavedChild {
  std::shared_ptr<Object> const& child;

  template <class Archive>
  void save(Archive& archive) const {
    Save(archive, child);
  }
};

struct LoadedChild {
  std::shared_ptr<Object>& child;

  template <class Archive>
  void load(Archive& archive) {
    Load(archive, child);
  }
};

// The XML form holds only text an XML document can hold.
inline void CheckXmlMember(char const* name, std::string const& text) {
  object::detail::CheckXmlText(text, ("string of the member '" + std::string(name) + "'").c_str());
}

template <class V>
void CheckXmlMember(char const* name, V const& value) {
  if constexpr (std::is_same_v<V, std::vector<std::string>>) {
    for (std::string const& item : value) {
      CheckXmlMember(name, item);
    }
  } else {
    static_cast<void>(name);
    static_cast<void>(value);
  }
}

template <class V>
void WriteBinary(cereal::PortableBinaryOutputArchive& archive, V const& value) {
  namespace fields = object::detail;
  if constexpr (std::is_same_v<V, bool>) {
    fields::WriteBool(archive, value);
  } else if constexpr (std::is_same_v<V, std::string>) {
    fields::WriteString(archive, value);
  } else if constexpr (IsList<V>) {
    fields::WriteCount(archive, value.size());
    for (auto const& item : value) {
      WriteBinary(archive, static_cast<typename V::value_type>(item));
    }
  } else if constexpr (IsChild<V>) {
    Save(archive, value);
  } else {
    fields::WriteNumber(archive, value);
  }
}

template <class V>
void ReadBinary(cereal::PortableBinaryInputArchive& archive, V& value) {
  namespace fields = object::detail;
  if constexpr (std::is_same_v<V, bool>) {
    value = fields::ReadBool(archive);
  } else if constexpr (std::is_same_v<V, std::string>) {
    value = fields::ReadString(archive);
  } else if constexpr (IsList<V>) {
    // Room for a few items ahead; the rest grows with the items read.
    std::uint64_t const count = fields::ReadCount(archive);
    V items;
    items.reserve(static_cast<std::size_t>(std::min(count, fields::ReservedAhead)));
    for (std::uint64_t index = 0; index != count; ++index) {
      typename V::value_type item{};
      ReadBinary(archive, item);
      items.push_back(std::move(item));
    }
    value = std::move(items);
  } else if constexpr (IsChild<V>) {
    Load(archive, value);
  } else {
    value = fields::ReadNumber<V>(archive);
  }
}

template <class Archive, class V>
void SaveMember(Archive& archive, char const* name, V const& value) {
  if constexpr (IsBinary<Archive>) {
    WriteBinary(archive, value);
  } else if constexpr (IsChild<V>) {
    archive(cereal::make_nvp(name, SavedChild{value}));
  } else {
    if constexpr (std::is_same_v<Archive, cereal::XMLOutputArchive>) {
      CheckXmlMember(name, value);
    }
    archive(cereal::make_nvp(name, value));
  }
}

template <class Archive, class V>
void LoadMember(Archive& archive, char const* name, V& value) {
  if constexpr (IsChild<V>) {
    // A failure inside the child names the member in its path.
    object::detail::TrailStep const step{std::string(name)};
    if constexpr (IsBinary<Archive>) {
      ReadBinary(archive, value);
    } else {
      archive(cereal::make_nvp(name, LoadedChild{value}));
    }
  } else if constexpr (IsBinary<Archive>) {
    ReadBinary(archive, value);
  } else {
    archive(cereal::make_nvp(name, value));
  }
}

// The values of T's members, in order: what a load reads before it changes
// the record, and what a copy makes before it changes it.
template <class T, class Description = std::remove_const_t<decltype(DescriptionOf<T>)>>
struct StagedOf;

template <class T, class C, class... M>
struct StagedOf<T, Description<C, M...>> {
  using Type = std::tuple<M...>;
};

template <class T>
using Staged = typename StagedOf<T>::Type;

// Moves staged values into the record's members; moving them cannot throw.
template <class T, std::size_t... I>
void Commit(T& value, Staged<T>& staged, std::index_sequence<I...>) noexcept {
  ((value.*(std::get<I>(DescriptionOf<T>.members).pointer) = std::move(std::get<I>(staged))), ...);
}

template <class T>
void Commit(T& value, Staged<T>& staged) noexcept {
  Commit(value, staged, std::make_index_sequence<MemberCount<T>>());
}

// The save function of the record class R (holding a T) for Archive.
template <class R, class T, class Archive>
struct SaveRecord {
  void operator()(Object const& object, Archive& archive) const {
    T const& value = object.As<R>();
    object.Serialize(archive);
    ForEachMember<T>(
        [&](auto const& member) { SaveMember(archive, member.name, value.*(member.pointer)); });
  }
};

template <class R, class T, class Archive>
struct LoadRecord {
  void operator()(Object& object, Archive& archive) const {
    object.Serialize(archive);
    Staged<T> staged;
    Read(archive, staged, std::make_index_sequence<MemberCount<T>>());
    Commit<T>(static_cast<R&>(object), staged);
  }

  // In order: the binary form has nothing else to go by.
  template <std::size_t... I>
  static void Read(Archive& archive, Staged<T>& staged, std::index_sequence<I...>) {
    (LoadMember(archive, std::get<I>(DescriptionOf<T>.members).name, std::get<I>(staged)), ...);
  }
};

}  // namespace ryx::object::record::detail
