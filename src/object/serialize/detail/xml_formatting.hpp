// detail::ThrowFormattingFailures: makes cereal's XML output archive throw
// when it cannot format a value for want of memory.
//
// The archive formats every value through a private std::ostringstream whose
// failed growth only sets badbit, so the value would be written cut short
// ("ryx.object.Dict") without a word. Saving this tag through the archive sets
// that stream to rethrow the failure instead; a member specialization for a
// type of this library is the one way to reach the stream.
#pragma once

#include <ios>

#include "object/serialize/detail/archives.hpp"

namespace ryx::object::detail {

struct ThrowFormattingFailures {};

}  // namespace ryx::object::detail

namespace cereal {

template <>
inline void XMLOutputArchive::saveValue<ryx::object::detail::ThrowFormattingFailures>(
    ryx::object::detail::ThrowFormattingFailures const&) {
  itsOS.exceptions(std::ios::badbit);
}

}  // namespace cereal
