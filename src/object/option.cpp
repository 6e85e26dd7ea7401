#include <ryx/object/option.hpp>

namespace ryx::type {

template <>
std::map<unsigned long, std::string> const& Strings<object::Option>::GetMap() {
  static std::map<unsigned long, std::string> const map{
      {static_cast<unsigned long>(object::Option::deserializing), "deserializing"}};
  return map;
}

}  // namespace ryx::type
