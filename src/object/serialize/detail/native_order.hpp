// detail::NativeOrderFlag: the first byte of a binary stream whose fields lie
// in this machine's byte order, as cereal's portable binary archives write
// and expect it by default (1 little-endian, 0 big-endian).
#pragma once

#include <cstdint>

namespace ryx::object::detail {

inline constexpr std::uint8_t NativeOrderFlag = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? 1 : 0;

}  // namespace ryx::object::detail
