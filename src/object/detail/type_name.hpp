// The registered name of a type id for messages, or "[not-registered]".
#pragma once

#include <ryx/hash/murmur_three32.hpp>

namespace ryx::object::detail {

char const* TypeNameOrNotRegistered(hash::MurmurThree32 const& id);

}  // namespace ryx::object::detail
