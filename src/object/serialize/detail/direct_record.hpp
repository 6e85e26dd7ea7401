// detail::DirectRecord: what the direct writers and readers (of the JSON and
// the binary form) need to know of a registry record: which of the library's
// own kinds its save and load functions for those forms belong to, and its
// type name as JSON text.
//
// The typed writers and readers handle a value themselves only when its
// record holds the library's own function for the kind; `none` stands for a
// record without the function, `other` for a function of someone else's,
// which only the archive can run. The plain JSON form goes by `own`, the kind
// whose type id the record is registered under (`other` for a type of the
// user's own), whatever its functions.
#pragma once

#include <ryx/object/registry/info.hpp>

#include <cstdint>
#include <string>

namespace ryx::object::detail {

enum class LibraryKind : std::uint8_t {
  none,
  other,
  Bool,
  Int8,
  Int16,
  Int32,
  Int64,
  UInt8,
  UInt16,
  UInt32,
  UInt64,
  Float,
  Double,
  String,
  Array,
  Dictionary,
  Enum,
  Pointer,
  ConstPointer,
};

struct DirectRecord {
  LibraryKind own = LibraryKind::other;
  LibraryKind jsonSave = LibraryKind::none;
  LibraryKind jsonLoad = LibraryKind::none;
  LibraryKind binarySave = LibraryKind::none;
  LibraryKind binaryLoad = LibraryKind::none;
  // The type name as the writer writes a string: quoted and escaped.
  std::string quotedName;
};

DirectRecord MakeDirectRecord(registry::Info const& info);

}  // namespace ryx::object::detail
