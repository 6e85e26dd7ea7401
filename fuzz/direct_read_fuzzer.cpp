// For any bytes, FromJson and FromBinary give what the archive path gives:
// the same value or the same error.
#include "same_outcome.hpp"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string_view const bytes(reinterpret_cast<char const*>(data), size);
  fuzz::ExpectSameOutcome("FromJson", ryx::object::FromJson, ryx::object::FromJsonThroughArchive,
                          bytes);
  fuzz::ExpectSameOutcome("FromBinary", ryx::object::FromBinary,
                          ryx::object::FromBinaryThroughArchive, bytes);
  return 0;
}
