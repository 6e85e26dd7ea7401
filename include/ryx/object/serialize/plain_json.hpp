// ToPlainJson / FromPlainJson: a value as the plain JSON everyone else writes
// (RFC 8259), and any JSON text as a value, optionally typed by a schema.
//
// Plain JSON carries no type names and no schemas: each kind writes as the
// JSON it naturally is.
//
//   Bool                    true or false
//   Int8 ... UInt64         an integer number
//   Float, Double           a number: the shortest text that reads back as
//                           the same value, with ".0" when it would otherwise
//                           read as an integer
//   String                  a string; every byte survives (a NUL as \u0000)
//   Array                   an array
//   Dictionary              an object, members in the dictionary's order
//   Enum                    its enumerator value, a number
//   a null child            null (a null value at the root writes null)
//   a type of the user's    what its PlainFunctions make of it
//
// Writing refuses, with a PlainJsonError naming the value's path, what plain
// JSON cannot hold: NaN and infinities, strings and keys that are not valid
// UTF-8, pointers, and types of the user's own without a plain form. Nothing
// is returned then.
//
// Reading takes strict JSON: no comments, no trailing commas, no NaN, one
// value, UTF-8. Without a schema the JSON decides: an object makes a
// Dictionary, an array an Array (both under the default schema), true and
// false a Bool, an integer an Int64 (or a UInt64 above Int64's range), any
// other number a Double, a string a String, null a null child (an empty
// pointer at the root). Of members with the same name the first is kept.
//
// With a schema the value read conforms to it, or the load throws:
// schema.Check passes on it and every container gets the element schema the
// schema gives it. A type names the kind to make, its child types the
// elements: a container with one child type of its own holds elements of that
// type, one with several holds exactly that many elements, position by
// position (so does the null type with child types, which reads an array).
// Integers are range-checked into the kind named (Int8 from 300 is refused,
// never wrapped); an integer may fill Float and Double; a number with a
// fraction or an exponent never fills an integer kind; null is refused, since
// no container takes a null element. A type of the user's own reads what its
// PlainFunctions take. Enums and pointers cannot be read: their plain form
// does not say their type.
//
// Failures are PlainJsonError, whose message names the line, the column and
// the JSON Pointer of the value at fault, and whose Location (location.hpp)
// holds them too; NestingLimitError for values nested deeper than
// GetNestingLimit(), also with a Location; std::invalid_argument for a schema
// no value can conform to; std::bad_alloc.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>
#include <ryx/object/required.hpp>
#include <ryx/object/serialize/json.hpp>
#include <ryx/object/serialize/location.hpp>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ryx::object {

class RYX_OBJECT_EXPORT PlainJsonError : public std::runtime_error, public Located {
 public:
  // `what` is the whole message; `reason` the part of it after the location.
  PlainJsonError(std::string const& what, std::string reason, Location location);
  PlainJsonError(PlainJsonError const&) = default;
  PlainJsonError& operator=(PlainJsonError const&) = default;
  ~PlainJsonError() override;

  // What is wrong, without where: "expected ryx.object.Int8, found 300".
  std::string const& GetReason() const noexcept { return reason; }

 private:
  std::string reason;
};

RYX_OBJECT_EXPORT std::string ToPlainJson(std::shared_ptr<Object const> const& value,
                                          JsonLayout layout = JsonLayout::Indented);

RYX_OBJECT_EXPORT std::shared_ptr<Object> FromPlainJson(std::string_view text,
                                                        Required const& schema = Required());

}  // namespace ryx::object
