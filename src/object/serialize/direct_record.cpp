#include "object/serialize/detail/direct_record.hpp"

#include <cstring>
#include <tuple>
#include <utility>

#include "object/serialize/detail/handlers.hpp"
#include "object/serialize/detail/json_allocator.hpp"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace ryx::object::detail {

namespace {

// Each kind with its LibraryKind: X(Type, Name).
#define RYX_OBJECT_DETAIL_KINDS(X)                                                      \
  X(Bool, Bool)                                                                        \
  X(Int8, Int8)                                                                        \
  X(Int16, Int16)                                                                      \
  X(Int32, Int32)                                                                      \
  X(Int64, Int64)                                                                      \
  X(UInt8, UInt8)                                                                      \
  X(UInt16, UInt16)                                                                    \
  X(UInt32, UInt32)                                                                    \
  X(UInt64, UInt64)                                                                    \
  X(Float, Float)                                                                      \
  X(Double, Double)                                                                    \
  X(String, String)                                                                    \
  X(ArrayKind, Array)                                                                  \
  X(DictionaryKind, Dictionary)                                                        \
  X(EnumKind, Enum)                                                                    \
  X(PointerKind, Pointer)                                                              \
  X(ConstPointerKind, ConstPointer)

template <class Function, template <class, class> class Handler, class Archive>
LibraryKind KindOf(Function const& function) {
  if (!function) {
    return LibraryKind::none;
  }
  LibraryKind kind = LibraryKind::other;
  auto const match = [&](auto tag, LibraryKind candidate) {
    using Kind = typename decltype(tag)::type;
    if (function.template target<Handler<Kind, Archive>>() != nullptr) {
      kind = candidate;
    }
  };
#define RYX_OBJECT_DETAIL_MATCH(Type, Name) match(std::common_type<Type>(), LibraryKind::Name);
  RYX_OBJECT_DETAIL_KINDS(RYX_OBJECT_DETAIL_MATCH)
#undef RYX_OBJECT_DETAIL_MATCH
  return kind;
}

// Escaped by rapidjson's own writer, exactly as the archive escapes it.
std::string Quoted(char const* name) {
  using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, JsonStackAllocator>;
  JsonStackAllocator allocator;
  Buffer quoted(&allocator);
  rapidjson::Writer<Buffer, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonStackAllocator> writer(
      quoted, &allocator);
  writer.String(name, static_cast<rapidjson::SizeType>(std::strlen(name)));
  return std::string(quoted.GetString(), quoted.GetSize());
}

// The kind whose type id `id` is, or `other`.
LibraryKind OwnKind(hash::MurmurThree32 const& id) {
  LibraryKind kind = LibraryKind::other;
  auto const match = [&](auto tag, LibraryKind candidate) {
    if (id == Object::TypeIdOf<typename decltype(tag)::type>()) {
      kind = candidate;
    }
  };
#define RYX_OBJECT_DETAIL_MATCH(Type, Name) match(std::common_type<Type>(), LibraryKind::Name);
  RYX_OBJECT_DETAIL_KINDS(RYX_OBJECT_DETAIL_MATCH)
#undef RYX_OBJECT_DETAIL_MATCH
  return kind;
}

#undef RYX_OBJECT_DETAIL_KINDS

template <class Output, class Input>
std::pair<LibraryKind, LibraryKind> KindsOf(registry::Info const& info) {
  return {KindOf<SaveFunction<Output>, SaveHandler, Output>(
              std::get<SaveFunction<Output>>(info.GetSaveFunctions())),
          KindOf<LoadFunction<Input>, LoadHandler, Input>(
              std::get<LoadFunction<Input>>(info.GetLoadFunctions()))};
}

}  // namespace

DirectRecord MakeDirectRecord(registry::Info const& info) {
  auto const [jsonSave, jsonLoad] =
      KindsOf<cereal::JSONOutputArchive, cereal::JSONInputArchive>(info);
  auto const [binarySave, binaryLoad] =
      KindsOf<cereal::PortableBinaryOutputArchive, cereal::PortableBinaryInputArchive>(info);
  char const* const name = info.GetTypeName();
  return DirectRecord{OwnKind(info.GetTypeNameId()), jsonSave, jsonLoad, binarySave, binaryLoad,
                      Quoted(name != nullptr ? name : "")};
}

}  // namespace ryx::object::detail
