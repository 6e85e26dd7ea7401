// ryx::object::PlainFunctions: how a type registered by its user appears in
// plain JSON (ToPlainJson, FromPlainJson): as a value of the kinds plain JSON
// holds, usually a Dictionary of its members, so that a record reads and
// writes as a JSON object.
//
// The library's own kinds have a plain form built in and never use these. A
// type whose record holds neither function has no plain form: writing or
// reading it as plain JSON is refused.
#pragma once

#include <ryx/object/fwd.hpp>

#include <functional>
#include <memory>

namespace ryx::object {

struct PlainFunctions {
  // The value plain JSON writes in place of `value`, which is of the type.
  // It may hold values of the user's types again; it must not be null.
  std::function<std::shared_ptr<Object const>(Object const& value)> save;
  // Fills `value`, newly made by the type's construct function, from `plain`:
  // the JSON read as its kinds decide (an object as a Dictionary, an integer
  // as an Int64 or a UInt64, any other number as a Double, an array as an
  // Array, a string as a String, a boolean as a Bool; null children where the
  // JSON holds null). Throws std::invalid_argument, with a message naming
  // the member at fault, to refuse it; `value` is then discarded.
  std::function<void(Object& value, Object const& plain)> load;

  // True when the type has a plain form.
  explicit operator bool() const noexcept { return save && load; }
};

}  // namespace ryx::object
