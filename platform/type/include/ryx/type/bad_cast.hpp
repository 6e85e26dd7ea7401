// ryx::type::BadCast: a std::bad_cast that carries its own message.
#pragma once

#include <ryx/type/export.hpp>

#include <string>
#include <typeinfo>

namespace ryx::type {

class RYX_TYPE_EXPORT BadCast : public std::bad_cast {
public:
  explicit BadCast(std::string message) : message(std::move(message)) {}
  char const* what() const noexcept override { return message.c_str(); }

private:
  std::string message;
};

}  // namespace ryx::type
