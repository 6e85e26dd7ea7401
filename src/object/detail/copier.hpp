// Deep copies of many values in a row, as a container's copy makes them.
//
// Object::Copy looks the construct function up in the registry, under its
// lock, for every value. Containers mostly hold values of one or a few types,
// so the copier keeps the construct function of the last type it saw.
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/object.hpp>

#include <functional>
#include <memory>

namespace ryx::object::detail {

class Copier {
public:
  // A new value of the source's type given the source's value, or null when
  // the type cannot be made. Exceptions of Set pass through.
  std::shared_ptr<Object> Copy(Object const& source) {
    hash::MurmurThree32 const type = source.GetType();
    if (type != lastType || !construct) {
      LookUp(type);
    }
    if (!construct) {
      return nullptr;
    }
    std::shared_ptr<Object> copy = construct();
    if (copy) {
      copy->Set(source);
    }
    return copy;
  }

private:
  // Out of line: copies of nested containers recurse through Copy, and the
  // lookup's temporaries would take stack on every level.
  [[gnu::noinline]] void LookUp(hash::MurmurThree32 type) {
    construct = Object::GetConstructFunction(type);
    lastType = type;
  }

  hash::MurmurThree32 lastType;
  std::function<std::shared_ptr<Object>()> construct;
};

}  // namespace ryx::object::detail
