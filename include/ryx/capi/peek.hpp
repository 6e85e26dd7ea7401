// ryx::object::Peek: borrowing access to a value, refusing null.
#pragma once

#include <ryx/object.h>
#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>

namespace ryx::object {

// `object` itself; throws std::invalid_argument when it is empty.
RYX_OBJECT_EXPORT std::shared_ptr<Object> const& Peek(std::shared_ptr<Object> const& object);
RYX_OBJECT_EXPORT std::shared_ptr<Object const> const& Peek(
    std::shared_ptr<Object const> const& object);

// The handle's value without taking a reference; throws std::invalid_argument
// for a null handle.
RYX_OBJECT_EXPORT Object& Peek(RyxObject* handle);
RYX_OBJECT_EXPORT Object const& Peek(RyxObject const* handle);

}  // namespace ryx::object
