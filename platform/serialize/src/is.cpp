#include <ryx/serialize/is.hpp>

namespace cereal {

namespace {

bool const True = true;

}  // namespace

IsFlags Is(std::string const& key, std::string const& value) {
  return IsFlags{"is", key.c_str(), Recursive<bool const>{value.c_str(), &True}};
}

}  // namespace cereal
