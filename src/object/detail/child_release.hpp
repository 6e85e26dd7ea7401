// detail::ChildRelease, public so that the records of <ryx/object/record.hpp>
// release their children without recursion like the containers.
#pragma once

#include <ryx/object/detail/child_release.hpp>
