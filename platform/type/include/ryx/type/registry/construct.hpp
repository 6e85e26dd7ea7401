// ryx::type::registry::Construct<T, void>: makes a new default T in a
// std::shared_ptr. It is the construct function of every registered type.
#pragma once

#include <memory>

namespace ryx::type::registry {

template <class T, class Arguments = void>
struct Construct;

template <class T>
struct Construct<T, void> {
  std::shared_ptr<T> operator()() const { return std::make_shared<T>(); }
};

}  // namespace ryx::type::registry
