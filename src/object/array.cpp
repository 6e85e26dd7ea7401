#include <ryx/object/array.hpp>

#include <ryx/object/container/const_iterator.hpp>
#include <ryx/object/container/iterator.hpp>
#include <ryx/object/registry/get.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include "object/detail/child_release.hpp"
#include "object/detail/copier.hpp"
#include "object/detail/nesting_guard.hpp"
#include "object/detail/out_of_line.hpp"
#include "object/detail/type_name.hpp"

#include <iterator>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace ryx::object {

namespace {

[[noreturn, gnu::noinline, gnu::cold]] void ThrowCannotCopy(Object const& element) {
  std::string message = "Failed to copy array element '";
  if (char const* const name = Object::TypeName(element.GetType())) {
    message += name;
  }
  throw std::runtime_error(message);
}

[[noreturn]] void ThrowOutOfRange(std::size_t index, std::size_t size) {
  throw std::out_of_range("The index is out of range: " + std::to_string(index) +
                          " >= " + std::to_string(size));
}

}  // namespace

template <class Base>
Array<Base>::Array() : Base(Base::template TypeIdOf<Array>()) {}

template <class Base>
Array<Base>::Array(Objects objects)
    : Base(Base::template TypeIdOf<Array>()), objects(std::move(objects)) {
  required.Check(this->objects);
}

template <class Base>
Array<Base>::Array(Required required, std::initializer_list<std::shared_ptr<Object>> objects)
    : Array(std::move(required), Objects(objects)) {}

template <class Base>
Array<Base>::Array(Required required, Objects objects)
    : Base(Base::template TypeIdOf<Array>()), objects(std::move(objects)),
      required(std::move(required)) {
  this->required.Check(this->objects);
}

template <class Base>
Array<Base>::Array(Array const& other) : Base(other) {
  *this = other;
}

template <class Base>
Array<Base>& Array<Base>::operator=(Array const& other) {
  if (this == &other) {
    return *this;
  }
  detail::NestingGuard const guard(detail::Nesting::copy);
  detail::Copier copier;
  Objects copies;
  copies.reserve(other.objects.size());
  for (std::shared_ptr<Object> const& element : other.objects) {
    // A null element (left by loading) stays null, so the copy equals its source.
    if (!element) {
      copies.emplace_back();
      continue;
    }
    std::shared_ptr<Object> copy = copier.Copy(*element);
    if (!copy) {
      ThrowCannotCopy(*element);
    }
    copies.push_back(std::move(copy));
  }
  // Out of line: this frame is on the stack once per level of the copy.
  detail::OutOfLine([&] {
    Required newRequired = other.required;
    swap(required, newRequired);
    objects.swap(copies);
    detail::ChildRelease::Release(copies);
  });
  return *this;
}

template <class Base>
Array<Base>::~Array() {
  detail::ChildRelease::ReleaseChildren(*this);
}

template <class Base>
void Array<Base>::Set(std::size_t index, std::shared_ptr<Object> object) {
  if (!object) {
    throw std::invalid_argument("Cannot set null object pointers in an array");
  }
  auto const& children = required.GetChildTypes();
  if (required.GetType() == hash::MurmurThree32() && !children.empty()) {
    if (index >= children.size()) {
      throw std::invalid_argument(
          "Required with null type can only be as large as the number of Required children");
    }
    children[index].Check(*object);
  } else {
    required.Check(*object);
  }
  if (index >= objects.size()) {
    ThrowOutOfRange(index, objects.size());
  }
  // The replaced element is released after the swap, by `object`.
  objects[index].swap(object);
}

template <class Base>
void Array<Base>::CheckOne(std::shared_ptr<Object> const& object) const {
  // As a one-element list, so a per-position schema applies its size rule.
  std::initializer_list<std::shared_ptr<Object>> const list{object};
  required.Check(list);
}

template <class Base>
void Array<Base>::Append(std::shared_ptr<Object> object) {
  CheckOne(object);
  objects.push_back(std::move(object));
}

template <class Base>
void Array<Base>::Prepend(std::shared_ptr<Object> object) {
  CheckOne(object);
  objects.insert(objects.begin(), std::move(object));
}

template <class Base>
void Array<Base>::Insert(std::size_t index, std::initializer_list<std::shared_ptr<Object>> list) {
  Insert(index, Objects(list));
}

template <class Base>
void Array<Base>::Insert(std::size_t index, Objects const& list) {
  required.Check(list);
  if (index > objects.size()) {
    ThrowOutOfRange(index, objects.size());
  }
  objects.insert(objects.begin() + static_cast<std::ptrdiff_t>(index), list.begin(), list.end());
}

template <class Base>
std::shared_ptr<Object> Array<Base>::Pop(std::size_t index) {
  if (index >= objects.size()) {
    ThrowOutOfRange(index, objects.size());
  }
  std::shared_ptr<Object> popped = std::move(objects[index]);
  objects.erase(objects.begin() + static_cast<std::ptrdiff_t>(index));
  return popped;
}

template <class Base>
std::shared_ptr<Object> const& Array<Base>::Get(std::size_t index) const {
  if (index >= objects.size()) {
    ThrowOutOfRange(index, objects.size());
  }
  return objects[index];
}

template <class Base>
void Array<Base>::SetRequired(Required newRequired) {
  // An empty array is not checked: a per-position schema may describe
  // elements that are still to come.
  if (!objects.empty()) {
    newRequired.Check(objects);
  }
  swap(required, newRequired);
}

template <class Base>
void Array<Base>::Shrink() noexcept {
  try {
    objects.shrink_to_fit();
  } catch (std::bad_alloc const&) {
    // Keeping the larger storage is harmless.
  }
}

template <class Base>
void Array<Base>::Clear() noexcept {
  // TakeChildren clears the vector, which keeps its storage.
  detail::ChildRelease::ReleaseChildren(*this);
}

template <class Base>
bool Array<Base>::Contains(Object const* object) const noexcept {
  for (std::shared_ptr<Object> const& element : objects) {
    if (element.get() == object) {
      return true;
    }
  }
  return false;
}

template <class Base>
std::shared_ptr<Object> Array<Base>::PopBack() {
  if (objects.empty()) {
    throw std::logic_error("The array has no elements to pop the last element");
  }
  std::shared_ptr<Object> popped = std::move(objects.back());
  objects.pop_back();
  return popped;
}

template <class Base>
std::shared_ptr<Object> Array<Base>::PopFront() {
  if (objects.empty()) {
    throw std::logic_error("The array has no elements to pop the first element");
  }
  std::shared_ptr<Object> popped = std::move(objects.front());
  objects.erase(objects.begin());
  return popped;
}

template <class Base>
std::shared_ptr<Object>* Array<Base>::GetSlot(std::size_t index) noexcept {
  return index < objects.size() ? &objects[index] : nullptr;
}

template <class Base>
container::ConstIterator Array<Base>::Begin() const {
  return container::Begin(objects);
}

template <class Base>
container::Iterator Array<Base>::Begin() {
  return container::Begin(objects);
}

template <class Base>
container::ConstIterator Array<Base>::End() const {
  return container::ConstIterator();
}

template <class Base>
container::Iterator Array<Base>::End() {
  return container::Iterator();
}

template <class Base>
void Array<Base>::Set(Object const& other) {
  *this = other.As<Array>();
}

template <class Base>
bool Array<Base>::EqualTo(Object const& other) const {
  Array const& that = other.As<Array>();
  if (objects.size() != that.objects.size() || required != that.required) {
    return false;
  }
  detail::NestingGuard const guard(detail::Nesting::comparison);
  for (std::size_t i = 0; i < objects.size(); ++i) {
    Object const* const a = objects[i].get();
    Object const* const b = that.objects[i].get();
    if (a == nullptr || b == nullptr) {
      if (a != b) {
        return false;
      }
    } else if (!a->EqualTo(*b)) {
      return false;
    }
  }
  return true;
}

template class Array<Object>;

RYX_TYPE_REGISTRY_REGISTER(registry::Get(), Array<Object>);

}  // namespace ryx::object
