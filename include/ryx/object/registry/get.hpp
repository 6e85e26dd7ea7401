// ryx::object::registry::Get(): the process-wide type registry.
//
// Built by the first call (thread-safe) and destroyed at exit or unload, after
// every type registered in it has deregistered.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/registry/info.hpp>
#include <ryx/type/registry.hpp>

namespace ryx::object::registry {

using Registry = type::Registry<Info>;

RYX_OBJECT_EXPORT Registry& Get();

}  // namespace ryx::object::registry
