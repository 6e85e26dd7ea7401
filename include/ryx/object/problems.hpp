// ryx::object::FindProblems: everything in a value that its containers'
// schemas, or the library's other operations, will not accept.
//
// Loading fills arrays and dictionaries as the document says, without the
// checks that Append or Insert make, and turns an unknown type name or a null
// record into a null child. A value can therefore load and break a later
// operation. FindProblems walks a whole value and reports, in document order
// (array elements by index, dictionary entries by key):
//
//  - every element that does not pass its container's schema (the schema's
//    own Check, child i of a per-position schema for the i-th element in the
//    container's own order), with the text of that check;
//  - every container whose element count differs from its per-position
//    schema's number of children;
//  - every null child, and a null root;
//  - every value nested deeper than GetNestingLimit() (the root is level 1),
//    as Save and Load count levels: such a value cannot be saved or loaded.
//    Its contents are not walked, which also ends the walk of a value that
//    holds itself.
//
// Each problem carries the JSON Pointer (RFC 6901) of the value it concerns:
// the dictionary keys and array indices that lead to it from the root, each
// after a '/', with '~' written "~0" and '/' written "~1" inside keys. The
// root's pointer is the empty string. A value shared by several containers is
// walked, and reported, at each place.
//
// The walk keeps its own stack on the heap: any depth is safe on any thread
// stack of 128 KiB or more. It changes nothing; allocation failures throw
// std::bad_alloc.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <string>
#include <vector>

namespace ryx::object {

struct Problem {
  std::string path;     // a JSON Pointer to the value concerned; "" is the root
  std::string message;  // what is wrong there

  friend bool operator==(Problem const& a, Problem const& b) {
    return a.path == b.path && a.message == b.message;
  }
  friend bool operator!=(Problem const& a, Problem const& b) { return !(a == b); }
};

// No problem at all gives an empty list.
RYX_OBJECT_EXPORT std::vector<Problem> FindProblems(Object const& value);
// As above; a null `value` is itself a problem, at the root.
RYX_OBJECT_EXPORT std::vector<Problem> FindProblems(std::shared_ptr<Object const> const& value);

}  // namespace ryx::object
