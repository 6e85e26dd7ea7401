// Helpers shared by the serialization tests: the values the round trips run
// through, the bytes of the binary form, a one-value JSON document, and
// test::Box, a registered test kind that holds one child value, so that
// nesting can be tested through Save and Load with any depth of values.
#pragma once

#include <ryx/object.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace test {

using ryx::object::Object;

// Primitive values at the edges of their ranges beside those the every-kind
// table of the form tests writes, and a string with bytes the forms escape.
std::vector<std::shared_ptr<Object const>> ExtremePrimitives();

// [Int32 7, {"name": String "abc"}], both containers under the default schema.
std::shared_ptr<Object> Example();

// An array of: a dictionary under a typed schema holding a typed array and
// the example, an enumerator, a pointer with a pointee, an empty const pointer
// and a null child (what loading a null record leaves).
std::shared_ptr<ryx::object::Array<Object>> EveryKindInContainers();

// The little-endian bytes of an integer, as the binary form writes them.
template <class T>
std::string Bytes(T value) {
  std::string bytes;
  for (std::size_t i = 0; i != sizeof(T); ++i) {
    bytes += static_cast<char>((static_cast<std::uint64_t>(value) >> (8 * i)) & 0xFF);
  }
  return bytes;
}

// The type id of `typeName` as the binary form writes it.
inline std::string Id(char const* typeName) {
  return Bytes(ryx::hash::MurmurThree32::MakeData(typeName).GetValue());
}

// The endianness byte of a little-endian stream.
inline std::string const Little = "\x01";

// The JSON document of a value of `typeName` whose value member is `json`.
inline std::string Valued(std::string const& typeName, std::string const& json) {
  return R"({"typename":")" + typeName + R"(","value":)" + json + "}";
}

inline constexpr char const* BoxName = "test.serialize.Box";

class Box : public Object {
 public:
  Box() : Object(ryx::hash::MurmurThree32::MakeData(BoxName)) {}
  void Set(Object const& other) override { child = static_cast<Box const&>(other).child; }
  bool EqualTo(Object const& other) const override { return other.GetType() == GetType(); }

  std::shared_ptr<Object> child;
};

// Registers Box once, with save and load functions for the three round-trip
// forms (one template for all): the type record, then the child in a node
// "child".
void RegisterBox();

// `levels` boxes, each holding the next; the innermost holds an Int32.
std::shared_ptr<Object const> MakeBoxes(std::size_t levels);

}  // namespace test
