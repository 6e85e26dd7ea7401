// ryx::object::Convert: moves values between C handles and shared pointers.
//
// A handle (RyxObject*) is a heap-allocated std::shared_ptr<Object>. Making a
// handle gives the C side one owner; converting a handle back consumes it.
#pragma once

#include <ryx/object.h>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <type_traits>
#include <utility>

namespace ryx::object {

// A new owned handle of `object`. Throws std::invalid_argument for an empty
// pointer and std::bad_alloc when the handle cannot be allocated.
RYX_OBJECT_EXPORT RyxObject* Convert(std::shared_ptr<Object> object);
RYX_OBJECT_EXPORT RyxObject const* Convert(std::shared_ptr<Object const> object);

// A pointer to a value class (std::shared_ptr<Int32>...) picks the form that
// keeps its constness, which the two overloads above leave ambiguous.
template <class T, class = std::enable_if_t<std::is_convertible_v<T*, Object const*>>>
auto Convert(std::shared_ptr<T> object) {
  if constexpr (std::is_const_v<T>) {
    return Convert(std::shared_ptr<Object const>(std::move(object)));
  } else {
    return Convert(std::shared_ptr<Object>(std::move(object)));
  }
}

// The handle's value; the handle is freed. Throws std::invalid_argument for a
// null handle, which is then not consumed.
RYX_OBJECT_EXPORT std::shared_ptr<Object> Convert(RyxObject* handle);
RYX_OBJECT_EXPORT std::shared_ptr<Object const> Convert(RyxObject const* handle);

}  // namespace ryx::object
