// ryx::type::registry::Lock<T>: access to a T that stays locked for exactly
// the life of the Lock.
//
// The Lock holds the unlocking action and runs it when destroyed. It is movable
// (the moved-from Lock unlocks nothing) and not copyable.
#pragma once

#include <functional>
#include <utility>

namespace ryx::type::registry {

template <class T>
class Lock {
public:
  Lock(T& value, std::function<void()> unlock) noexcept
      : value(&value), unlock(std::move(unlock)) {}

  Lock(Lock&& other) noexcept : value(other.value), unlock(std::move(other.unlock)) {
    other.unlock = nullptr;
  }
  Lock(Lock const&) = delete;
  Lock& operator=(Lock const&) = delete;
  Lock& operator=(Lock&&) = delete;

  ~Lock() {
    if (unlock) {
      unlock();
    }
  }

  T& Get() const noexcept { return *value; }
  T& operator*() const noexcept { return *value; }
  T* operator->() const noexcept { return value; }

private:
  T* value;
  std::function<void()> unlock;
};

}  // namespace ryx::type::registry
