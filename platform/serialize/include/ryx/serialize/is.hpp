// cereal::Is: the type flags of a value for a template.
//
// Is(key, value) names where a flag goes so that a template can test it:
// under the node "is", then the node `key`, then the dotted path `value`,
// holding true. For Is("typename", "ryx.object.Int32") a mustache template
// tests {{#is.typename.ryx.object.Int32}}.
#pragma once

#include <ryx/serialize/export.hpp>
#include <ryx/serialize/recursive.hpp>

#include <string>

namespace cereal {

struct IsFlags {
  char const* first;   // "is"
  char const* second;  // the key
  Recursive<bool const> flag;
};

// The names point into `key` and `value`, which must outlive the result.
RYX_SERIALIZE_EXPORT IsFlags Is(std::string const& key, std::string const& value);

}  // namespace cereal
