// ryx::object::registry::Info: what the registry knows about one type.
//
// The id, the name (a string constant the registry does not copy), a function
// that makes a default value, the save and load tuples, and for a type of the
// user's own its plain JSON form. Any function may be empty.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/object/serialize/load_functions.hpp>
#include <ryx/object/serialize/plain_functions.hpp>
#include <ryx/object/serialize/save_functions.hpp>

#include <functional>
#include <memory>

namespace ryx::object::registry {

class RYX_OBJECT_EXPORT Info {
public:
  using ConstructFunction = std::function<std::shared_ptr<Object>()>;
  using SaveFunctions = object::SaveFunctions;
  using LoadFunctions = object::LoadFunctions;

  Info(hash::MurmurThree32 typeNameId, char const* typeName, ConstructFunction construct,
       SaveFunctions save, LoadFunctions load, PlainFunctions plain = {});

  hash::MurmurThree32 const& GetTypeNameId() const noexcept { return typeNameId; }
  char const* GetTypeName() const noexcept { return typeName; }
  ConstructFunction const& GetConstructFunction() const noexcept { return construct; }
  SaveFunctions const& GetSaveFunctions() const noexcept { return save; }
  LoadFunctions const& GetLoadFunctions() const noexcept { return load; }
  PlainFunctions const& GetPlainFunctions() const noexcept { return plain; }

private:
  hash::MurmurThree32 typeNameId;
  char const* typeName;
  ConstructFunction construct;
  SaveFunctions save;
  LoadFunctions load;
  PlainFunctions plain;
};

}  // namespace ryx::object::registry
