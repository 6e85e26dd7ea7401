// The save and load functions of every kind: MakeSaveFunction and
// MakeLoadFunction, instantiated per form by the form's source.
//
// A kind is written by WriteValue and read by ReadValue. Primitives are
// handled here: the type record, then "value". Every other kind (containers,
// enumerators, pointers) provides the member templates
//   template <class Archive> void Serialize(Archive&) const;  // output
//   template <class Archive> void Serialize(Archive&);        // input
// which write or read the type record first (WriteTypeRecord / ReadTypeRecord)
// and then their members.
#pragma once

#include <ryx/object/primitive.hpp>
#include <ryx/object/serialize/load_functions.hpp>
#include <ryx/object/serialize/save_functions.hpp>

#include <string>
#include <type_traits>

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"
#include "object/serialize/detail/kind_forms.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/type_record.hpp"
#include "object/serialize/detail/xml_text.hpp"

namespace ryx::object {

namespace detail {

template <class Archive, class T>
void WriteField(Archive& archive, T const& value) {
  if constexpr (!std::is_same_v<Archive, cereal::PortableBinaryOutputArchive>) {
    archive(cereal::make_nvp("value", value));
  } else if constexpr (std::is_same_v<T, bool>) {
    WriteBool(archive, value);
  } else if constexpr (std::is_same_v<T, std::string>) {
    WriteString(archive, value);
  } else {
    WriteNumber(archive, value);
  }
}

template <class T, class Archive>
T ReadField(Archive& archive) {
  if constexpr (!std::is_same_v<Archive, cereal::PortableBinaryInputArchive>) {
    T value{};
    archive(cereal::make_nvp("value", value));
    return value;
  } else if constexpr (std::is_same_v<T, bool>) {
    return ReadBool(archive);
  } else if constexpr (std::is_same_v<T, std::string>) {
    return ReadString(archive);
  } else {
    return ReadNumber<T>(archive);
  }
}

template <class Archive, class T>
void WriteValue(Archive& archive, T const& value) {
  value.Serialize(archive);
}

template <class Archive, class T>
void WriteValue(Archive& archive, Primitive<T, Object> const& value) {
  if constexpr (std::is_same_v<Archive, cereal::XMLOutputArchive> &&
                std::is_same_v<T, std::string>) {
    CheckXmlText(value.Get(), "string");
  }
  WriteTypeRecord(archive, value);
  WriteField(archive, value.Get());
}

template <class Archive, class T>
void ReadValue(Archive& archive, T& value) {
  value.Serialize(archive);
}

// The value is set only once everything was read.
template <class Archive, class T>
void ReadValue(Archive& archive, Primitive<T, Object>& value) {
  ReadTypeRecord(archive, value);
  value.Set(ReadField<T>(archive));
}

// The library's own save and load functions of kind T, as named function
// objects so that a registry record can be recognised as holding them
// (std::function::target): the direct JSON writer and reader handle such
// records themselves and leave any other function to the archive.
//
// Saving casts with the checked As<T>: a save function called with another
// kind throws BadCast. Loading does not check: Load made the object from the
// same type id.
template <class T, class Archive>
struct SaveHandler {
  void operator()(Object const& object, Archive& archive) const {
    WriteValue(archive, object.As<T>());
  }
};

template <class T, class Archive>
struct LoadHandler {
  void operator()(Object& object, Archive& archive) const {
    ReadValue(archive, static_cast<T&>(object));
  }
};

}  // namespace detail

template <class T, class Archive, SaveFunction<Archive>*>
SaveFunction<Archive> MakeSaveFunction() {
  return detail::SaveHandler<T, Archive>();
}

template <class T, class Archive, LoadFunction<Archive>*>
LoadFunction<Archive> MakeLoadFunction() {
  return detail::LoadHandler<T, Archive>();
}

}  // namespace ryx::object

// The save and load functions of every kind for one pair of archives.
#define RYX_OBJECT_DETAIL_INSTANTIATE_SAVE(Kind)  \
  template SaveFunction<RYX_OBJECT_DETAIL_OUTPUT> \
  MakeSaveFunction<Kind, RYX_OBJECT_DETAIL_OUTPUT>();
#define RYX_OBJECT_DETAIL_INSTANTIATE_LOAD(Kind) \
  template LoadFunction<RYX_OBJECT_DETAIL_INPUT> MakeLoadFunction<Kind, RYX_OBJECT_DETAIL_INPUT>();
