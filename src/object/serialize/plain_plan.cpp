#include "object/serialize/detail/plain_plan.hpp"

#include <ryx/object/object.hpp>

#include <cstdio>
#include <stdexcept>
#include <utility>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/registry_cache.hpp"

namespace ryx::object::detail {

namespace {

std::string TypeText(hash::MurmurThree32 const& type) {
  if (char const* const name = Object::TypeName(type)) {
    return name;
  }
  char hex[24];
  std::snprintf(hex, sizeof hex, "0x%08x", static_cast<unsigned>(type.GetValue()));
  return std::string("the unregistered type ") + hex;
}

[[noreturn]] void Refuse(std::string const& why) {
  throw std::invalid_argument("No plain JSON can conform to the schema: " + why);
}

PlainPlan Plan(Required const& schema);

// The elements of a container whose schema has `children`.
void PlanElements(PlainPlan& plan, std::vector<Required> const& children) {
  if (children.empty()) {
    plan.children.emplace_back();
    return;
  }
  if (children.size() == 1 && children.front().GetType() != hash::MurmurThree32()) {
    plan.elementSchema = children.front();
    plan.children.push_back(Plan(children.front()));
    return;
  }
  if (plan.make == LibraryKind::Dictionary && children.size() > 1) {
    Refuse("a dictionary's members have no order, so " + TypeText(plan.type) +
           " cannot give each of " + std::to_string(children.size()) +
           " members a type by position; give it one child type");
  }
  plan.elementSchema = Required(children.begin(), children.end());
  plan.perPosition = true;
  plan.children.reserve(children.size());
  for (Required const& child : children) {
    plan.children.push_back(Plan(child));
  }
}

PlainPlan Plan(Required const& schema) {
  NestingGuard const level(Nesting::schema);
  PlainPlan plan;
  plan.type = schema.GetType();
  std::vector<Required> const& children = schema.GetChildTypes();
  if (plan.type == hash::MurmurThree32()) {
    if (!children.empty()) {
      plan.make = LibraryKind::Array;
      PlanElements(plan, children);
    }
    return plan;
  }
  CachedRecord const* const record = FindCachedRecord(plan.type);
  if (record == nullptr) {
    Refuse(TypeText(plan.type) + " is not a registered type");
  }
  plan.make = record->direct.own;
  switch (plan.make) {
    case LibraryKind::Array:
    case LibraryKind::Dictionary:
      PlanElements(plan, children);
      return plan;
    case LibraryKind::Enum:
    case LibraryKind::Pointer:
    case LibraryKind::ConstPointer:
      Refuse(TypeText(plan.type) + " cannot be read from plain JSON, which does not say its type");
    case LibraryKind::other:
      plan.own = record->info;
      if (!plan.own->GetPlainFunctions() || !plan.own->GetConstructFunction()) {
        Refuse(TypeText(plan.type) + " has no plain JSON form (no PlainFunctions were registered)");
      }
      if (!children.empty()) {
        Refuse(TypeText(plan.type) + " is read by its plain form, which takes no child types");
      }
      return plan;
    default:
      if (!children.empty()) {
        Refuse(TypeText(plan.type) + " holds no elements, so it cannot have child types");
      }
      return plan;
  }
}

}  // namespace

PlainPlan const& UntypedPlan() {
  static PlainPlan const untyped = [] {
    PlainPlan plan;
    plan.nullable = true;
    return plan;
  }();
  return untyped;
}

PlainPlan MakePlainPlan(Required const& schema) { return Plan(schema); }

std::string DescribeExpected(PlainPlan const& plan) {
  switch (plan.make) {
    case LibraryKind::none:
      return "a value";
    case LibraryKind::Array:
      return "an array";
    case LibraryKind::Dictionary:
      return "an object";
    default:
      return TypeText(plan.type);
  }
}

}  // namespace ryx::object::detail
