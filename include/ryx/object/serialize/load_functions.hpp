// ryx::object::LoadFunction<Archive> and the load tuple a type registers:
// one function per input archive, each filling a freshly made value.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/type/tag.hpp>

#include <functional>
#include <iosfwd>
#include <tuple>

namespace ryx::object {

template <class Archive>
using LoadFunction = std::function<void(Object&, Archive&)>;

using LoadFunctions =
    std::tuple<LoadFunction<cereal::XMLInputArchive>, LoadFunction<cereal::JSONInputArchive>,
               LoadFunction<cereal::PortableBinaryInputArchive>>;

// The load function of T for Archive. Defined and instantiated inside the
// library for every kind it registers and every archive of the tuple; the
// third parameter is always left at its default.
template <class T, class Archive, LoadFunction<Archive>* = nullptr>
RYX_OBJECT_EXPORT LoadFunction<Archive> MakeLoadFunction();

// Found by type::function::MakeOverloads when a type registers.
template <class T, class Archive>
LoadFunction<Archive> MakeOverload(type::Tag<T>, type::Tag<LoadFunction<Archive>>) {
  return MakeLoadFunction<T, Archive>();
}

// Writes which load functions are set: {"xml":B,"json":B,"binary":B}.
RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, LoadFunctions const& functions);

}  // namespace ryx::object
