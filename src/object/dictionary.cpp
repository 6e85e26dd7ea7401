#include <ryx/object/dictionary.hpp>

#include <ryx/object/container/const_iterator.hpp>
#include <ryx/object/container/iterator.hpp>
#include <ryx/object/registry/get.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include "object/detail/child_release.hpp"
#include "object/detail/copier.hpp"
#include "object/detail/nesting_guard.hpp"
#include "object/detail/out_of_line.hpp"

#include <stdexcept>
#include <utility>
#include <vector>

namespace ryx::object {

namespace {

[[noreturn, gnu::noinline, gnu::cold]] void ThrowCannotCopy(std::string const& key,
                                                            Object const& value) {
  std::string message = "Failed to copy dictionary element '" + key + "': ";
  if (char const* const name = Object::TypeName(value.GetType())) {
    message += name;
  }
  throw std::runtime_error(message);
}

}  // namespace

template <class Base>
Dictionary<Base>::Dictionary() : Base(Base::template TypeIdOf<Dictionary>()) {}

template <class Base>
Dictionary<Base>::Dictionary(Properties properties)
    : Dictionary(Base::template TypeIdOf<Dictionary>(), Required(), std::move(properties)) {}

template <class Base>
Dictionary<Base>::Dictionary(hash::MurmurThree32&& type, Required required, Properties properties)
    : Base(type), properties(std::move(properties)), required(std::move(required)) {
  for (auto const& entry : this->properties) {
    if (!entry.second) {
      throw std::invalid_argument("Must provide valid object pointers when creating a dictionary");
    }
  }
}

template <class Base>
Dictionary<Base>::Dictionary(Dictionary const& other) : Base(other) {
  *this = other;
}

template <class Base>
Dictionary<Base>& Dictionary<Base>::operator=(Dictionary const& other) {
  if (this == &other) {
    return *this;
  }
  detail::NestingGuard const guard(detail::Nesting::copy);
  detail::Copier copier;
  Properties copies;
  copies.reserve(other.properties.size());
  for (auto const& entry : other.properties) {
    std::string const& key = entry.first;
    // A null value (left by loading) stays null, so the copy equals its source.
    if (!entry.second) {
      copies.emplace(key, nullptr);
      continue;
    }
    std::shared_ptr<Object> copy = copier.Copy(*entry.second);
    if (!copy) {
      ThrowCannotCopy(key, *entry.second);
    }
    detail::OutOfLine([&] { copies.emplace(key, std::move(copy)); });
  }
  // Out of line: this frame is on the stack once per level of the copy.
  detail::OutOfLine([&] {
    Required newRequired = other.required;
    // The entries go first and the source's schema is checked against none: a
    // per-position schema therefore fails here, leaving this dictionary empty
    // under its previous schema.
    detail::ChildRelease::ReleaseChildren(*this);
    other.required.Check(properties);
    swap(required, newRequired);
    // The schema now applies as a whole to every value; null values copied
    // from a loaded source are kept as they are.
    for (auto const& entry : copies) {
      if (entry.second) {
        required.Check(*entry.second);
      }
    }
    properties.swap(copies);
  });
  return *this;
}

template <class Base>
Dictionary<Base>::~Dictionary() {
  detail::ChildRelease::ReleaseChildren(*this);
}

template <class Base>
void Dictionary<Base>::Insert(std::string key, std::shared_ptr<Object> object) {
  required.Check(object);
  auto const [position, inserted] = properties.try_emplace(std::move(key), std::move(object));
  static_cast<void>(position);
  if (!inserted) {
    throw std::logic_error("The key has already been inserted into the dictionary");
  }
}

template <class Base>
std::shared_ptr<Object> Dictionary<Base>::Pop(std::string const& key) {
  auto const found = properties.find(key);
  if (found == properties.end()) {
    throw std::out_of_range("Key was not found in the dictionary: " + key);
  }
  std::shared_ptr<Object> popped = std::move(found->second);
  properties.erase(found);
  return popped;
}

template <class Base>
std::shared_ptr<Object> const& Dictionary<Base>::Get(std::string const& key) const {
  auto const found = properties.find(key);
  if (found == properties.end()) {
    throw std::out_of_range("Key was not found in the dictionary: " + key);
  }
  return found->second;
}

template <class Base>
void Dictionary<Base>::SetRequired(Required newRequired) {
  newRequired.Check(properties);
  swap(required, newRequired);
}

template <class Base>
void Dictionary<Base>::Clear() noexcept {
  detail::ChildRelease::ReleaseChildren(*this);
}

template <class Base>
bool Dictionary<Base>::ContainsObject(Object const* object) const noexcept {
  for (auto const& entry : properties) {
    if (entry.second.get() == object) {
      return true;
    }
  }
  return false;
}

template <class Base>
void Dictionary<Base>::Assign(std::string key, std::shared_ptr<Object> object) {
  if (!object) {
    throw std::invalid_argument("Cannot set null object pointers in an dictionary");
  }
  // The replaced value, if any, is released through `object` on return.
  properties[std::move(key)].swap(object);
}

template <class Base>
std::shared_ptr<Object>* Dictionary<Base>::GetSlot(std::string const& key) {
  auto const found = properties.find(key);
  return found != properties.end() ? &found->second : nullptr;
}

template <class Base>
container::ConstIterator Dictionary<Base>::Begin() const {
  return container::Begin(properties);
}

template <class Base>
container::Iterator Dictionary<Base>::Begin() {
  return container::Begin(properties);
}

template <class Base>
container::ConstIterator Dictionary<Base>::End() const {
  return container::End(properties);
}

template <class Base>
container::Iterator Dictionary<Base>::End() {
  return container::End(properties);
}

template <class Base>
void Dictionary<Base>::Set(Object const& other) {
  *this = other.As<Dictionary>();
}

template <class Base>
bool Dictionary<Base>::EqualTo(Object const& other) const {
  Dictionary const& that = other.As<Dictionary>();
  if (properties.size() != that.properties.size() || required != that.required) {
    return false;
  }
  detail::NestingGuard const guard(detail::Nesting::comparison);
  for (auto const& [key, value] : properties) {
    auto const found = that.properties.find(key);
    if (found == that.properties.end()) {
      return false;
    }
    Object const* const theirs = found->second.get();
    if (value == nullptr || theirs == nullptr) {
      if (value.get() != theirs) {
        return false;
      }
    } else if (!value->EqualTo(*theirs)) {
      return false;
    }
  }
  return true;
}

template class Dictionary<Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Dictionary<Object>);

}  // namespace ryx::object
