// test::Box: a registered test kind that holds one child value, so that
// nesting can be tested through Save and Load with any depth of values.
#pragma once

#include <ryx/object.hpp>

#include <memory>
#include <string>

namespace test {

using ryx::object::Object;

inline constexpr char const* BoxName = "test.serialize.Box";

class Box : public Object {
 public:
  Box() : Object(ryx::hash::MurmurThree32::MakeData(BoxName)) {}
  void Set(Object const& other) override { child = static_cast<Box const&>(other).child; }
  bool EqualTo(Object const& other) const override { return other.GetType() == GetType(); }

  std::shared_ptr<Object> child;
};

// Registers Box once, with save and load functions for the three round-trip
// forms: the type record, then the child in a node "child".
void RegisterBox();

// `levels` boxes, each holding the next; the innermost holds an Int32.
std::shared_ptr<Object const> MakeBoxes(std::size_t levels);

}  // namespace test
