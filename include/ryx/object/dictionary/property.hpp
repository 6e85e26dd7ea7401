// ryx::object::dictionary::Property: one key and its (never null) value, for
// callers that carry a single entry around.
#pragma once

#include <ryx/object/export.hpp>
#include <ryx/object/fwd.hpp>

#include <memory>
#include <string>
#include <utility>

namespace ryx::object::dictionary {

class RYX_OBJECT_EXPORT Property {
public:
  // Throws std::invalid_argument when `object` is null.
  Property(std::string key, std::shared_ptr<Object> object);

  std::string const& GetKey() const& noexcept { return key; }
  std::string&& GetKey() && noexcept { return std::move(key); }
  std::shared_ptr<Object> GetObject() const& { return object; }
  std::shared_ptr<Object>&& GetObject() && noexcept { return std::move(object); }

private:
  std::string key;
  std::shared_ptr<Object> object;
};

}  // namespace ryx::object::dictionary
