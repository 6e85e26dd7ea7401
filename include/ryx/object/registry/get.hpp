// ryx::object::registry::Get(): the process-wide type registry.
//
// Built by the first call (thread-safe) and destroyed at exit or unload, after
// every type registered in it has deregistered. Saving and loading keep the
// addresses of the records they use between values (until the registry
// changes), so a type must not be removed while another thread saves or
// loads a value of it.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/registry/info.hpp>
#include <ryx/type/registry.hpp>

namespace ryx::object::registry {

using Registry = type::Registry<Info>;

RYX_OBJECT_EXPORT Registry& Get();

}  // namespace ryx::object::registry
