// ToTemplateData / Render: a value as the context of a mustache template.
//
// ToTemplateData saves the value into a fresh template-data archive and returns
// its root map: the fields of the JSON form, every number as decimal text,
// booleans as bool nodes, and beside each "typename" the type flags, so that
// a template tests a type with {{#is.typename.ryx.object.Int32}}.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <mstch/mstch.hpp>

#include <memory>
#include <string>

namespace ryx::object {

RYX_OBJECT_EXPORT mstch::node ToTemplateData(std::shared_ptr<Object const> const& value);

// Renders `tmplt` over the value's template data. Inline, so that the renderer
// is the caller's own copy of mstch.
inline std::string Render(std::string const& tmplt, std::shared_ptr<Object const> const& value) {
  return mstch::render(tmplt, ToTemplateData(value));
}

}  // namespace ryx::object
