#include "object/serialize/detail/plain_plan.hpp"

#include <ryx/object/object.hpp>
#include <ryx/object/registry/get.hpp>

#include <cstdio>
#include <stdexcept>
#include <utility>

#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/kinds.hpp"

namespace ryx::object::detail {

namespace {

using Make = PlainPlan::Make;

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

// The kinds plain JSON holds and reads, by their type ids.
bool FindLibraryKind(hash::MurmurThree32 const& type, Make& make) {
  struct Known {
    hash::MurmurThree32 id;
    Make make;
  };
  static Known const known[] = {
      {Object::TypeIdOf<Bool>(), Make::Bool},
      {Object::TypeIdOf<Int8>(), Make::Int8},
      {Object::TypeIdOf<Int16>(), Make::Int16},
      {Object::TypeIdOf<Int32>(), Make::Int32},
      {Object::TypeIdOf<Int64>(), Make::Int64},
      {Object::TypeIdOf<UInt8>(), Make::UInt8},
      {Object::TypeIdOf<UInt16>(), Make::UInt16},
      {Object::TypeIdOf<UInt32>(), Make::UInt32},
      {Object::TypeIdOf<UInt64>(), Make::UInt64},
      {Object::TypeIdOf<Float>(), Make::Float},
      {Object::TypeIdOf<Double>(), Make::Double},
      {Object::TypeIdOf<String>(), Make::String},
      {Object::TypeIdOf<ArrayKind>(), Make::Array},
      {Object::TypeIdOf<DictionaryKind>(), Make::Dictionary},
  };
  for (Known const& kind : known) {
    if (kind.id == type) {
      make = kind.make;
      return true;
    }
  }
  return false;
}

bool HasNoPlainForm(hash::MurmurThree32 const& type) {
  return type == Object::TypeIdOf<EnumKind>() || type == Object::TypeIdOf<PointerKind>() ||
         type == Object::TypeIdOf<ConstPointerKind>();
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
  if (plan.make == Make::Dictionary && children.size() > 1) {
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
      plan.make = Make::Array;
      PlanElements(plan, children);
    }
    return plan;
  }
  if (FindLibraryKind(plan.type, plan.make)) {
    if (plan.make == Make::Array || plan.make == Make::Dictionary) {
      PlanElements(plan, children);
    } else if (!children.empty()) {
      Refuse(TypeText(plan.type) + " holds no elements, so it cannot have child types");
    }
    return plan;
  }
  if (HasNoPlainForm(plan.type)) {
    Refuse(TypeText(plan.type) + " cannot be read from plain JSON, which does not say its type");
  }
  registry::Info const* own = nullptr;
  {
    auto const map = registry::Get().GetMap();
    auto const record = map->find(plan.type);
    if (record != map->end()) {
      own = &record->second;
    }
  }
  if (own == nullptr) {
    Refuse(TypeText(plan.type) + " is not a registered type");
  }
  if (!own->GetPlainFunctions() || !own->GetConstructFunction()) {
    Refuse(TypeText(plan.type) + " has no plain JSON form (no PlainFunctions were registered)");
  }
  if (!children.empty()) {
    Refuse(TypeText(plan.type) + " is read by its plain form, which takes no child types");
  }
  plan.make = Make::Own;
  plan.own = own;
  return plan;
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
    case Make::Any:
      return "a value";
    case Make::Array:
      return "an array";
    case Make::Dictionary:
      return "an object";
    default:
      return TypeText(plan.type);
  }
}

}  // namespace ryx::object::detail
