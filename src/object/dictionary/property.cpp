#include <ryx/object/dictionary/property.hpp>

#include <stdexcept>

namespace ryx::object::dictionary {

Property::Property(std::string key, std::shared_ptr<Object> object)
    : key(std::move(key)), object(std::move(object)) {
  if (!this->object) {
    throw std::invalid_argument("Cannot create a property with a null object pointer");
  }
}

}  // namespace ryx::object::dictionary
