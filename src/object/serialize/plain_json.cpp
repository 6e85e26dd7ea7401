#include <ryx/object/serialize/plain_json.hpp>

#include <utility>

#include "object/serialize/detail/plain_json_reader.hpp"
#include "object/serialize/detail/plain_json_writer.hpp"
#include "object/serialize/detail/plain_plan.hpp"

namespace ryx::object {

PlainJsonError::PlainJsonError(std::string const& what, std::string reason, Location location)
    : std::runtime_error(what), Located(std::move(location)), reason(std::move(reason)) {}

PlainJsonError::~PlainJsonError() = default;

std::string ToPlainJson(std::shared_ptr<Object const> const& value, JsonLayout layout) {
  return detail::WritePlainJson(value.get(), layout);
}

std::shared_ptr<Object> FromPlainJson(std::string_view text, Required const& schema) {
  if (!schema) {
    return detail::ReadPlainJson(text, detail::UntypedPlan());
  }
  detail::PlainPlan const plan = detail::MakePlainPlan(schema);
  return detail::ReadPlainJson(text, plan);
}

}  // namespace ryx::object
