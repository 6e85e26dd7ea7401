// ryx::object::BadCast: thrown by Object::As<T>() when the value is not a T.
#pragma once

#include <ryx/object/export.hpp>

#include <string>
#include <typeinfo>

namespace ryx::object {

class RYX_OBJECT_EXPORT BadCast : public std::bad_cast {
public:
  explicit BadCast(std::string message) : message(std::move(message)) {}
  char const* what() const noexcept override { return message.c_str(); }

private:
  std::string message;
};

}  // namespace ryx::object
