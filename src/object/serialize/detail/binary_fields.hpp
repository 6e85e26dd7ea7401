// The fields of the portable binary form, public so that the records of
// <ryx/object/record.hpp> read them with the same checks as the built-in kinds.
#pragma once

#include <ryx/object/serialize/detail/binary_fields.hpp>
