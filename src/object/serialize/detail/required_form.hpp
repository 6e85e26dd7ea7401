// The serialized form of a schema (Required), for every archive: "type" (the
// type id as an unsigned 32-bit number) and "child_types" (a sequence of
// schemas). These are cereal's hooks, found by argument-dependent lookup
// wherever a container writes archive(cereal::make_nvp("required", schema)).
#pragma once

#include <ryx/object/required.hpp>

#include <vector>

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"
#include "object/serialize/detail/nesting.hpp"

namespace ryx::object {

template <class Archive>
void CEREAL_SAVE_FUNCTION_NAME(Archive& archive, Required const& required) {
  detail::NestingGuard const level(detail::Nesting::schema);
  archive(cereal::make_nvp("type", required.GetType().GetValue()),
          cereal::make_nvp("child_types", required.GetChildTypes()));
}

// The children are read in full before the schema is replaced, so a failure
// leaves it as it was. Loaded schemas are taken as they are, unchecked.
template <class Archive>
void CEREAL_LOAD_FUNCTION_NAME(Archive& archive, Required& required) {
  detail::NestingGuard const level(detail::Nesting::schema);
  unsigned int type = 0;
  std::vector<Required> children;
  archive(cereal::make_nvp("type", type), cereal::make_nvp("child_types", children));
  required = Required(hash::MurmurThree32(type), children.cbegin(), children.cend());
}

inline void CEREAL_LOAD_FUNCTION_NAME(cereal::PortableBinaryInputArchive& archive, Required& required) {
  detail::NestingGuard const level(detail::Nesting::schema);
  unsigned int type = 0;
  archive(type);
  std::vector<Required> const children = detail::ReadItems<Required>(
      archive, [](cereal::PortableBinaryInputArchive& in, Required& child) { in(child); });
  required = Required(hash::MurmurThree32(type), children.cbegin(), children.cend());
}

}  // namespace ryx::object
