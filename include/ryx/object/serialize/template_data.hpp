// ToTemplateData / Render: a value as the context of a mustache template.
//
// ToTemplateData saves the value into a fresh template-data archive and returns
// its root map: the fields of the JSON form, every number as decimal text,
// booleans as bool nodes, and beside each "typename" the type flags, so that
// a template tests a type with {{#is.typename.ryx.object.Int32}}.
//
// The tree nests two to three nodes per level of values, and copying or
// destroying it recurses once per node level: the renderer copies the tree it
// is given, and the last holder destroys it, both in the caller's own code.
// ToTemplateData therefore also throws NestingLimitError when the calling
// thread's stack could not hold that recursion from where it was called, as
// the including file is compiled: unoptimised or sanitized code takes up to
// ten times the stack of optimised code per level.
#pragma once

#include <ryx/object/detail/address_sanitizer.hpp>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <mstch/mstch.hpp>

#include <cstddef>
#include <memory>
#include <string>

namespace ryx::object {

namespace detail {

// The stack that copying or destroying a template-data tree takes per level of
// nodes, with a margin over what GCC 12 takes on x86-64 (about 120 bytes
// optimised, 1,000 unoptimised, 1,360 with AddressSanitizer).
#if RYX_OBJECT_DETAIL_ADDRESS_SANITIZER
inline constexpr std::size_t TemplateDataStackPerLevel = 1792;
#elif defined(__OPTIMIZE__)
inline constexpr std::size_t TemplateDataStackPerLevel = 192;
#else
inline constexpr std::size_t TemplateDataStackPerLevel = 1280;
#endif

// ToTemplateData for a caller whose code takes `stackPerLevel` per node level.
RYX_OBJECT_EXPORT mstch::node ToTemplateData(std::shared_ptr<Object const> const& value,
                                             std::size_t stackPerLevel);

}  // namespace detail

inline mstch::node ToTemplateData(std::shared_ptr<Object const> const& value) {
  return detail::ToTemplateData(value, detail::TemplateDataStackPerLevel);
}

// Renders `tmplt` over the value's template data. Inline, so that the renderer
// is the caller's own copy of mstch.
inline std::string Render(std::string const& tmplt, std::shared_ptr<Object const> const& value) {
  return mstch::render(tmplt, ToTemplateData(value));
}

}  // namespace ryx::object
