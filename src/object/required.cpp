#include <ryx/object/required.hpp>

#include <ryx/object/array.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/object.hpp>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/type_name.hpp"

#include <algorithm>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace ryx::object {

Required::Required(std::vector<Required> childTypes)
    : Required(hash::MurmurThree32(), std::move(childTypes)) {}

Required::Required(std::initializer_list<Required> childTypes)
    : Required(hash::MurmurThree32(), std::vector<Required>(childTypes)) {}

Required::Required(hash::MurmurThree32 type, std::vector<Required> childTypes)
    : type(type), childTypes(std::move(childTypes)) {
  CheckChildren();
}

Required::Required(hash::MurmurThree32 type, const_iterator const& begin, const_iterator const& end)
    : type(type), childTypes(begin, end) {}

Required::Required(const_iterator const& begin, const_iterator const& end)
    : childTypes(begin, end) {}

void Required::CheckChildren() const {
  if (std::any_of(childTypes.begin(), childTypes.end(),
                  [](Required const& child) { return !child; })) {
    throw std::invalid_argument("Cannot have empty required types");
  }
}

void Required::ThrowSizeMismatch() {
  throw std::invalid_argument(
      "Array size must be the same as Required size for Required with null type.");
}

// Children that have children of their own move onto a side stack, so that
// every schema goes once its children are leaves. When the side stack cannot
// grow, what is left is released recursively instead.
void Required::ReleaseNested(std::vector<Required>& children) noexcept {
  auto const hasChildren = [](Required const& child) { return !child.childTypes.empty(); };
  if (std::none_of(children.begin(), children.end(), hasChildren)) {
    return;
  }
  try {
    std::vector<Required> pending;
    auto const takeNested = [&](std::vector<Required>& level) {
      for (Required& child : level) {
        if (hasChildren(child)) {
          pending.push_back(std::move(child));
        }
      }
    };
    takeNested(children);
    children.clear();
    while (!pending.empty()) {
      std::vector<Required> level = std::move(pending.back().childTypes);
      pending.pop_back();
      takeNested(level);
    }
  } catch (...) {
  }
}

Required::Required(Required const& other) : type(other.type) {
  detail::NestingGuard const level(detail::Nesting::schema);
  childTypes = other.childTypes;
}

bool Required::operator==(Required const& other) const {
  if (type != other.type || childTypes.size() != other.childTypes.size()) {
    return false;
  }
  detail::NestingGuard const level(detail::Nesting::schema);
  return std::equal(childTypes.begin(), childTypes.end(), other.childTypes.begin());
}

void Required::Check(Object const& object) const {
  if (type == hash::MurmurThree32()) {
    return;
  }
  if (object.GetType() != type) {
    std::ostringstream message;
    message << "The object '" << detail::TypeNameOrNotRegistered(object.GetType())
            << "' did not match the required type '" << detail::TypeNameOrNotRegistered(type) << "'";
    throw std::invalid_argument(message.str());
  }
  if (childTypes.empty()) {
    return;
  }
  Required const& own = object.GetRequired();
  // A typed element schema is compared with the first child alone; an untyped
  // one with the per-position schema of all the children.
  Required const expected = own.GetType() != hash::MurmurThree32()
                                ? childTypes.front()
                                : Required(std::vector<Required>(childTypes));
  if (own != expected) {
    std::ostringstream message;
    message << "The object '" << detail::TypeNameOrNotRegistered(object.GetType())
            << "' specifies a required of: " << own
            << " which does not match the parents required: " << expected;
    throw std::invalid_argument(message.str());
  }
}

void Required::Check(std::shared_ptr<Object const> const& object) const {
  CheckPointer(object.get());
}

void Required::CheckPointer(Object const* object) const {
  if (object == nullptr) {
    throw std::invalid_argument("Must provide a non-null object pointer");
  }
  Check(*object);
}

std::shared_ptr<Object> Required::Make() const {
  if (type == hash::MurmurThree32()) {
    return nullptr;
  }
  std::shared_ptr<Object> made = Object::Make(type);
  // A single child is the element schema of a made container; with none or
  // several, the container keeps the schema its construct function gave it.
  if (made && childTypes.size() == 1) {
    if (made->Is<Array<Object>>()) {
      made->As<Array<Object>>().SetRequired(childTypes.front());
    } else if (made->Is<Dictionary<Object>>()) {
      made->As<Dictionary<Object>>().SetRequired(childTypes.front());
    }
  }
  return made;
}

std::ostream& operator<<(std::ostream& os, Required const& required) {
  detail::NestingGuard const level(detail::Nesting::schema);
  os << "{\"types\":[";
  bool first = true;
  for (Required const& child : required.childTypes) {
    if (!first) {
      os << ',';
    }
    first = false;
    os << child;
  }
  os << "], \"type:\"";
  if (char const* const name = Object::TypeName(required.type)) {
    os << name;
  } else {
    os << required.type;
  }
  return os << '}';
}

}  // namespace ryx::object
