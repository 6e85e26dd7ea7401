#include <ryx/object/detail/child_release.hpp>

#include <ryx/object/array.hpp>
#include <ryx/object/bool.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/double.hpp>
#include <ryx/object/enum.hpp>
#include <ryx/object/float.hpp>
#include <ryx/object/int16.hpp>
#include <ryx/object/int32.hpp>
#include <ryx/object/int64.hpp>
#include <ryx/object/int8.hpp>
#include <ryx/object/pointer.hpp>
#include <ryx/object/string.hpp>
#include <ryx/object/uint16.hpp>
#include <ryx/object/uint32.hpp>
#include <ryx/object/uint64.hpp>
#include <ryx/object/uint8.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace ryx::object::detail {

namespace {

// Makes room for `count` more objects, growing geometrically as push_back
// would; false when the stack cannot grow.
bool Room(ChildRelease::Pending& pending, std::size_t count) noexcept {
  if (pending.capacity() - pending.size() < count) {
    try {
      pending.reserve(std::max(pending.size() + count, 2 * pending.capacity()));
    } catch (...) {
      return false;
    }
  }
  return true;
}

// The library's kinds that hold no children: walking them finds nothing, so
// they are not walked.
bool IsLeafKind(hash::MurmurThree32 type) noexcept {
  switch (type.GetValue()) {
    case Object::TypeIdOf<Bool>().GetValue():
    case Object::TypeIdOf<Int8>().GetValue():
    case Object::TypeIdOf<Int16>().GetValue():
    case Object::TypeIdOf<Int32>().GetValue():
    case Object::TypeIdOf<Int64>().GetValue():
    case Object::TypeIdOf<UInt8>().GetValue():
    case Object::TypeIdOf<UInt16>().GetValue():
    case Object::TypeIdOf<UInt32>().GetValue():
    case Object::TypeIdOf<UInt64>().GetValue():
    case Object::TypeIdOf<Float>().GetValue():
    case Object::TypeIdOf<Double>().GetValue():
    case Object::TypeIdOf<String>().GetValue():
    case Object::TypeIdOf<Enum<Object>>().GetValue():
    case Object::TypeIdOf<Pointer<Object, void>>().GetValue():
    case Object::TypeIdOf<Pointer<Object, void const>>().GetValue():
      return true;
    default:
      return false;
  }
}

}  // namespace

void ChildRelease::Release(std::shared_ptr<Object>& child) noexcept {
  if (!child || child.use_count() != 1) {
    child.reset();
    return;
  }
  Pending pending;
  TakeChildren(*child, pending);
  child.reset();
  Release(pending);
}

void ChildRelease::ReleaseChildren(Object& container) noexcept {
  Pending pending;
  TakeChildren(container, pending);
  Release(pending);
}

void ChildRelease::Release(Pending& pending) noexcept {
  while (!pending.empty()) {
    std::shared_ptr<Object> child = std::move(pending.back());
    pending.pop_back();
    // Only the last owner may empty a container; a shared one lives on intact.
    if (child && child.use_count() == 1) {
      TakeChildren(*child, pending);
    }
    // `child` dies here with no children left, so its destructor is shallow.
  }
}

void ChildRelease::TakeChildren(Object& object, Pending& pending) noexcept {
  if (object.Is<Array<Object>>()) {
    auto& objects = object.As<Array<Object>>().objects;
    if (Room(pending, objects.size())) {
      std::move(objects.begin(), objects.end(), std::back_inserter(pending));
    }
    // Without room the children are released in place, each through its own
    // destructor: correct, only recursive.
    objects.clear();
  } else if (object.Is<Dictionary<Object>>()) {
    auto& properties = object.As<Dictionary<Object>>().properties;
    if (Room(pending, properties.size())) {
      for (auto& entry : properties) {
        pending.push_back(std::move(entry.second));
      }
    }
    properties.clear();
  } else if (!IsLeafKind(object.GetType())) {
    // The walk hands out shared copies: the value dies with its children
    // still owned here. Walking a record allocates nothing; a walk that
    // throws leaves the rest to be released in place.
    try {
      for (auto child = object.Begin(); child; ++child) {
        pending.push_back(child.operator->());
      }
    } catch (...) {
    }
  }
}

}  // namespace ryx::object::detail
