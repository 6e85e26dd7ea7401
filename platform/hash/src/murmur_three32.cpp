#include <ryx/hash/murmur_three32.hpp>

#include <ostream>

namespace ryx::hash {

MurmurThree32 MurmurThree32::MakeData(boost::string_view text) noexcept {
  return MurmurThree32(Compute(text.data(), text.size(), Seed));
}

std::ostream& operator<<(std::ostream& os, MurmurThree32 const& id) {
  return os << id.GetValue();
}

}  // namespace ryx::hash
