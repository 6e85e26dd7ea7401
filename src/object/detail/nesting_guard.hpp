// detail::NestingGuard, public so that the records of <ryx/object/record.hpp>
// count their copies and comparisons like the containers.
#pragma once

#include <ryx/object/detail/nesting_guard.hpp>
