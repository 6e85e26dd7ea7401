// detail::PlainPlan: a schema made ready for reading plain JSON under it.
//
// Each node says what to make of one JSON value: a kind, the element schema
// a container takes, and the plans of its elements. The node of the empty
// schema (`none`) lets the JSON decide, and a container it makes reads its
// elements by the same node.
//
// The element schema given to a container is the one its schema's check
// expects of it: a container type with one child type that has a type holds
// elements of that child type; one with several child types, or with a
// single child type without a type of its own, holds exactly that many
// elements, child by child. The null type with child types reads an array of
// that second form (every value passes such a schema, but an array of those
// elements is what it describes).
#pragma once

#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/registry/info.hpp>
#include <ryx/object/required.hpp>

#include <cstdint>

#include "object/serialize/detail/direct_record.hpp"
#include <string>
#include <vector>

namespace ryx::object::detail {

struct PlainPlan {
  // What to make: one of the library's kinds plain JSON holds; `none` for
  // what the JSON decides; `other` for a type of the user's own, made by its
  // PlainFunctions from the value read as the JSON decides.
  LibraryKind make = LibraryKind::none;
  // Whether null makes a null child: only when there is no schema at all.
  bool nullable = false;
  // The type the schema names (null for `none`).
  hash::MurmurThree32 type;
  // Array, Dictionary: the schema the made container takes.
  Required elementSchema;
  // Array, Dictionary: element i is read by children[i]; otherwise every
  // element by children[0].
  bool perPosition = false;
  std::vector<PlainPlan> children;
  // `other`: the type's registry record.
  registry::Info const* own = nullptr;
};

// The plan without a schema: the JSON decides everything, null included.
PlainPlan const& UntypedPlan();

// The plan of a schema (not the empty one). Throws std::invalid_argument
// for a schema no plain JSON can conform to, naming the type at fault, and
// NestingLimitError for one nested too deep.
PlainPlan MakePlainPlan(Required const& schema);

// What a plan expects, for messages: "ryx.object.Int8", "an array".
std::string DescribeExpected(PlainPlan const& plan);

}  // namespace ryx::object::detail
