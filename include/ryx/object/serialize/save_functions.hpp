// ryx::object::SaveFunction<Archive> and the save tuple a type registers:
// one function per output archive, each writing a value of that type.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/type/tag.hpp>

#include <functional>
#include <iosfwd>
#include <tuple>

namespace ryx::object {

template <class Archive>
using SaveFunction = std::function<void(Object const&, Archive&)>;

using SaveFunctions =
    std::tuple<SaveFunction<cereal::XMLOutputArchive>, SaveFunction<cereal::JSONOutputArchive>,
               SaveFunction<cereal::PortableBinaryOutputArchive>,
               SaveFunction<templating::serialize::archive::output::Data>>;

// The save function of T for Archive. Defined and instantiated inside the
// library for every kind it registers and every archive of the tuple; the
// third parameter is always left at its default.
template <class T, class Archive, SaveFunction<Archive>* = nullptr>
RYX_OBJECT_EXPORT SaveFunction<Archive> MakeSaveFunction();

// Found by type::function::MakeOverloads when a type registers.
template <class T, class Archive>
SaveFunction<Archive> MakeOverload(type::Tag<T>, type::Tag<SaveFunction<Archive>>) {
  return MakeSaveFunction<T, Archive>();
}

// Writes which save functions are set: {"xml":B,"json":B,"binary":B}.
RYX_OBJECT_EXPORT std::ostream& operator<<(std::ostream& os, SaveFunctions const& functions);

}  // namespace ryx::object
