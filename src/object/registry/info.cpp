#include <ryx/object/registry/info.hpp>

#include <utility>

namespace ryx::object::registry {

Info::Info(hash::MurmurThree32 typeNameId, char const* typeName, ConstructFunction construct,
           SaveFunctions save, LoadFunctions load, PlainFunctions plain)
    : typeNameId(typeNameId),
      typeName(typeName),
      construct(std::move(construct)),
      save(std::move(save)),
      load(std::move(load)),
      plain(std::move(plain)) {}

}  // namespace ryx::object::registry
