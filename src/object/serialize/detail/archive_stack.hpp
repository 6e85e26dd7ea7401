// The stack that the archives' own recursive passes take, which run outside
// the save and load recursion and so outside its checks: the XML parser,
// before any value is loaded; the XML printer, when the output archive is
// destroyed after the values were saved; the destruction of a template-data
// tree, wherever its holder lets it go. Each recurses once per element or node
// level, so the library bounds them by the stack left: FromXml refuses
// documents nested deeper than the parser can go, and a save into these
// archives keeps enough stack free for the pass afterwards (NestingGuard's
// later stack), measured from the outermost Save.
//
// Measured per level on x86-64 with GCC 12, optimised / unoptimised / with
// AddressSanitizer: the parser 160 / 210 / 240 bytes, the printer 320 / 820 /
// 1,940, a tree's destruction 64 / 650 / 780. The values below keep a margin
// over those.
#pragma once

#include <ryx/object/detail/address_sanitizer.hpp>

#include <cstddef>

#include "object/serialize/detail/archives.hpp"

namespace ryx::object::detail {

#if RYX_OBJECT_DETAIL_ADDRESS_SANITIZER
inline constexpr std::size_t XmlParseStackPerElement = 384;
inline constexpr std::size_t XmlPrintStackPerElement = 2560;
inline constexpr std::size_t TreeStackPerNode = 1024;
#elif defined(__OPTIMIZE__)
inline constexpr std::size_t XmlParseStackPerElement = 256;
inline constexpr std::size_t XmlPrintStackPerElement = 448;
inline constexpr std::size_t TreeStackPerNode = 96;
#else
inline constexpr std::size_t XmlParseStackPerElement = 320;
inline constexpr std::size_t XmlPrintStackPerElement = 1152;
inline constexpr std::size_t TreeStackPerNode = 768;
#endif

// The stack the pass after a save into Archive takes per element or node it
// printed or built. The portable binary and JSON archives have no such pass.
template <class Archive>
inline constexpr std::size_t LaterStackPerNode = 0;
template <>
inline constexpr std::size_t LaterStackPerNode<cereal::XMLOutputArchive> = XmlPrintStackPerElement;
template <>
inline constexpr std::size_t LaterStackPerNode<templating::serialize::archive::output::Data> =
    TreeStackPerNode;

// Per level of values and of schemas: a dictionary's value lies three
// elements or nodes below the dictionary's own ("properties", the item,
// "value"), an array's element two, a schema's child two ("child_types", the
// item).
template <class Archive>
inline constexpr std::size_t LaterStackPerValue = 3 * LaterStackPerNode<Archive>;
template <class Archive>
inline constexpr std::size_t LaterStackPerSchema = 2 * LaterStackPerNode<Archive>;

}  // namespace ryx::object::detail
