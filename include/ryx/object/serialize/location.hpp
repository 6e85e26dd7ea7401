// ryx::object::Location: where in a document an operation failed, and
// FindLocation, which reads it off a caught exception.
//
// The exceptions that reading and writing documents throw keep their types
// and messages; those that know where they happened also derive from
// Located, so a handler that catches them as before can still ask:
//
//   try {
//     FromPlainJson(text);
//   } catch (std::exception const& e) {
//     if (Location const* where = FindLocation(e)) {
//       std::cerr << where->line << ':' << where->column << ": " << e.what() << '\n';
//     }
//   }
#pragma once

#include <ryx/object/export.hpp>

#include <cstddef>
#include <exception>
#include <string>
#include <utility>

namespace ryx::object {

struct RYX_OBJECT_EXPORT Location {
  // The value at fault, as a JSON Pointer (RFC 6901) over the dictionary keys
  // and array indices that lead to it: "" is the value itself, "/sizes/3" the
  // fourth element of its member "sizes".
  std::string path;
  // Where reading stopped: the byte offset from the document's start, and for
  // the text forms its line and column, both counted from 1 (the column in
  // characters). A failure while writing has no place in a document: then
  // `hasOffset` is false and all three are 0; the binary form has no lines.
  bool hasOffset = false;
  std::size_t offset = 0;
  std::size_t line = 0;
  std::size_t column = 0;
};

// The second base of the exceptions that carry a Location.
class RYX_OBJECT_EXPORT Located {
 public:
  explicit Located(Location location) noexcept : location(std::move(location)) {}
  Located(Located const&) = default;
  Located& operator=(Located const&) = default;
  virtual ~Located();

  Location const& GetLocation() const noexcept { return location; }

 private:
  Location location;
};

// An exception of type Error that also carries a Location: thrown where a
// failure of the same type and message as elsewhere knows its place, so that
// handlers of Error catch it unchanged.
template <class Error>
class RYX_OBJECT_EXPORT LocatedError final : public Error, public Located {
 public:
  LocatedError(Error const& error, Location location) : Error(error), Located(std::move(location)) {}
};

// The location `error` carries, or null when it carries none.
RYX_OBJECT_EXPORT Location const* FindLocation(std::exception const& error) noexcept;

// The location in words: "line 3, column 12, at /sizes/1", "byte 17, at
// /sizes/1", "at /sizes/1", or "" for none (the value itself, with no place
// in a document).
RYX_OBJECT_EXPORT std::string FormatLocation(Location const& location);

}  // namespace ryx::object
