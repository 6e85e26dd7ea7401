// The forms of the kinds that serialize themselves: Array, Dictionary, Enum
// and the two Pointers. Their member templates Serialize(Archive&) are
// defined here and instantiated by each form's source for its archives.
//
// Every kind writes its type record, then its members through cereal, so one
// definition serves the four output archives: the text forms and the
// template-data tree see named nodes and sequences, the portable binary form
// the same fields as fixed-width numbers and 8-byte counts. Each child goes
// through Save and Load inside a node of its own.
//
// Loading reads everything into locals and changes the value only once all of
// it was read. In the binary form a count never allocates ahead of the bytes
// that back it (ReadItems, ReadString).
//
// These functions run once per level of nesting, so what does not recurse
// (the schema, a key) is written and read out of line: its strings and
// streams then take no stack on the levels below.
#pragma once

#include <ryx/object/array.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/enum.hpp>
#include <ryx/object/pointer.hpp>
#include <ryx/object/serialize/detail/load_trail.hpp>
#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/required.hpp>
#include <ryx/object/serialize/save.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include <cereal/types/string.hpp>

#include "object/detail/out_of_line.hpp"
#include "object/detail/prefetch.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"
#include "object/serialize/detail/save_value.hpp"
#include "object/serialize/detail/type_record.hpp"
#include "object/serialize/detail/xml_text.hpp"

namespace ryx::object::detail {

template <class Archive>
inline constexpr bool IsBinaryInput = std::is_same_v<Archive, cereal::PortableBinaryInputArchive>;
template <class Archive>
inline constexpr bool IsBinaryOutput = std::is_same_v<Archive, cereal::PortableBinaryOutputArchive>;

// One child value in a node of its own.
struct SavedNode {
  std::shared_ptr<Object> const& object;

  template <class Archive>
  void save(Archive& archive) const {
    SaveValue(archive, object.get());
  }
};

struct LoadedNode {
  std::shared_ptr<Object>& object;

  template <class Archive>
  void load(Archive& archive) {
    Load(archive, object);
  }
};

// A sequence of child values ("objects").
struct SavedNodes {
  std::vector<std::shared_ptr<Object>> const& objects;

  template <class Archive>
  void save(Archive& archive) const {
    archive(cereal::make_size_tag(static_cast<cereal::size_type>(objects.size())));
    for (std::size_t index = 0; index != objects.size(); ++index) {
      PrefetchAhead(objects, index);
      archive(SavedNode{objects[index]});
    }
  }
};

struct LoadedNodes {
  std::vector<std::shared_ptr<Object>>& objects;

  template <class Archive>
  void load(Archive& archive) {
    // A text document's count is that of the parsed document.
    cereal::size_type count = 0;
    archive(cereal::make_size_tag(count));
    objects.resize(static_cast<std::size_t>(count));
    for (std::size_t index = 0; index != objects.size(); ++index) {
      TrailStep const step(index);
      archive(LoadedNode{objects[index]});
    }
  }
};

// The entries of a dictionary ("properties"): each a node of "key" and "value".
using Properties = std::unordered_map<std::string, std::shared_ptr<Object>>;

struct SavedEntries {
  Properties const& properties;

  template <class Archive>
  void save(Archive& archive) const {
    archive(cereal::make_size_tag(static_cast<cereal::size_type>(properties.size())));
    for (auto const& entry : properties) {
      archive(SavedEntry{entry.first, entry.second});
    }
  }

  struct SavedEntry {
    std::string const& key;
    std::shared_ptr<Object> const& value;

    template <class Archive>
    void save(Archive& archive) const {
      OutOfLine([&] {
        if constexpr (std::is_same_v<Archive, cereal::XMLOutputArchive>) {
          CheckXmlText(key, "dictionary key");
        }
        archive(cereal::make_nvp("key", key));
      });
      archive(cereal::make_nvp("value", SavedNode{value}));
    }
  };
};

// A repeated key keeps its first entry.
struct LoadedEntries {
  Properties& properties;

  template <class Archive>
  void load(Archive& archive) {
    cereal::size_type count = 0;
    archive(cereal::make_size_tag(count));
    properties.reserve(static_cast<std::size_t>(count));
    for (cereal::size_type index = 0; index != count; ++index) {
      LoadedEntry entry;
      archive(entry);
      properties.try_emplace(std::move(entry.key), std::move(entry.value));
    }
  }

  struct LoadedEntry {
    std::string key;
    std::shared_ptr<Object> value;

    template <class Archive>
    void load(Archive& archive) {
      OutOfLine([&] { archive(cereal::make_nvp("key", key)); });
      TrailStep const step(key);
      archive(cereal::make_nvp("value", LoadedNode{value}));
    }
  };
};

// The binary counterparts write the same fields through binary_fields.hpp,
// and read counts with ReadCount and strings with ReadString, never trusting
// a count to size storage.
inline void SaveBinaryNodes(cereal::PortableBinaryOutputArchive& archive,
                            std::vector<std::shared_ptr<Object>> const& objects) {
  WriteCount(archive, objects.size());
  for (std::size_t index = 0; index != objects.size(); ++index) {
    PrefetchAhead(objects, index);
    SaveValue(archive, objects[index].get());
  }
}

inline void SaveBinaryEntries(cereal::PortableBinaryOutputArchive& archive,
                              Properties const& properties) {
  WriteCount(archive, properties.size());
  for (auto const& [key, value] : properties) {
    WriteString(archive, key);
    SaveValue(archive, value.get());
  }
}

inline std::vector<std::shared_ptr<Object>> LoadBinaryNodes(
    cereal::PortableBinaryInputArchive& archive) {
  std::size_t index = 0;
  return ReadItems<std::shared_ptr<Object>>(archive,
                                            [&index](auto& in, std::shared_ptr<Object>& object) {
                                              TrailStep const step(index++);
                                              Load(in, object);
                                            });
}

inline Properties LoadBinaryEntries(cereal::PortableBinaryInputArchive& archive) {
  std::uint64_t const count = ReadCount(archive);
  Properties properties;
  properties.reserve(static_cast<std::size_t>(std::min(count, ReservedAhead)));
  for (std::uint64_t index = 0; index != count; ++index) {
    std::string key = ReadString(archive);
    std::shared_ptr<Object> value;
    {
      TrailStep const step(key);
      Load(archive, value);
    }
    OutOfLine([&] { properties.try_emplace(std::move(key), std::move(value)); });
  }
  return properties;
}

}  // namespace ryx::object::detail

namespace ryx::object {

template <class Base>
template <class Archive>
void Array<Base>::Serialize(Archive& archive) const {
  detail::WriteTypeRecord(archive, *this);
  if constexpr (detail::IsBinaryOutput<Archive>) {
    CEREAL_SAVE_FUNCTION_NAME(archive, required);
    detail::SaveBinaryNodes(archive, objects);
  } else {
    detail::OutOfLine([&] { archive(cereal::make_nvp("required", required)); });
    archive(cereal::make_nvp("objects", detail::SavedNodes{objects}));
  }
}

template <class Base>
template <class Archive>
void Array<Base>::Serialize(Archive& archive) {
  detail::ReadTypeRecord(archive, *this);
  Required loadedRequired;
  Objects loadedObjects;
  if constexpr (detail::IsBinaryInput<Archive>) {
    CEREAL_LOAD_FUNCTION_NAME(archive, loadedRequired);
    loadedObjects = detail::LoadBinaryNodes(archive);
  } else {
    detail::OutOfLine([&] { archive(cereal::make_nvp("required", loadedRequired)); });
    archive(cereal::make_nvp("objects", detail::LoadedNodes{loadedObjects}));
  }
  // What the document holds, unchecked: loading restores, it does not build.
  swap(required, loadedRequired);
  objects.swap(loadedObjects);
}

template <class Base>
template <class Archive>
void Dictionary<Base>::Serialize(Archive& archive) const {
  detail::WriteTypeRecord(archive, *this);
  if constexpr (detail::IsBinaryOutput<Archive>) {
    detail::SaveBinaryEntries(archive, properties);
    CEREAL_SAVE_FUNCTION_NAME(archive, required);
  } else {
    archive(cereal::make_nvp("properties", detail::SavedEntries{properties}));
    detail::OutOfLine([&] { archive(cereal::make_nvp("required", required)); });
  }
}

template <class Base>
template <class Archive>
void Dictionary<Base>::Serialize(Archive& archive) {
  detail::ReadTypeRecord(archive, *this);
  Properties loadedProperties;
  Required loadedRequired;
  if constexpr (detail::IsBinaryInput<Archive>) {
    loadedProperties = detail::LoadBinaryEntries(archive);
    CEREAL_LOAD_FUNCTION_NAME(archive, loadedRequired);
  } else {
    archive(cereal::make_nvp("properties", detail::LoadedEntries{loadedProperties}));
    detail::OutOfLine([&] { archive(cereal::make_nvp("required", loadedRequired)); });
  }
  swap(required, loadedRequired);
  properties.swap(loadedProperties);
}

template <class Base>
template <class Archive>
void Enum<Base>::Serialize(Archive& archive) const {
  detail::WriteTypeRecord(archive, *this);
  archive(cereal::make_nvp("type", type.GetValue()), cereal::make_nvp("value", value));
}

template <class Base>
template <class Archive>
void Enum<Base>::Serialize(Archive& archive) {
  detail::ReadTypeRecord(archive, *this);
  std::uint32_t loadedType = 0;
  std::uint64_t loadedValue = 0;
  archive(cereal::make_nvp("type", loadedType), cereal::make_nvp("value", loadedValue));
  type = hash::MurmurThree32(loadedType);
  value = loadedValue;
}

template <class Base, class T>
template <class Archive>
void Pointer<Base, T>::Serialize(Archive& archive) const {
  detail::WriteTypeRecord(archive, *this);
  archive(cereal::make_nvp("type", type.GetValue()));
}

// The form carries no pointee: a loaded pointer holds what the document
// holds, the pointee type alone. A target it had before is let go, since it
// need not be of the loaded type.
template <class Base, class T>
template <class Archive>
void Pointer<Base, T>::Serialize(Archive& archive) {
  detail::ReadTypeRecord(archive, *this);
  std::uint32_t loadedType = 0;
  archive(cereal::make_nvp("type", loadedType));
  type = hash::MurmurThree32(loadedType);
  pointer.reset();
}

}  // namespace ryx::object
