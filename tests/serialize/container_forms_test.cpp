// The forms of arrays, dictionaries, enumerators and pointers, against
// hand-written documents and through round trips.
#include "serialize/box.hpp"

#include <boost/algorithm/string/erase.hpp>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace {

using namespace ryx::object;
using test::Bytes;
using test::Example;
using test::Id;

// The layout is the archive's own; these pin the members and their order.
TEST(ContainerForms, WriteTheExampleInEveryForm) {
  std::string const schema = R"("required":{"type":0,"child_types":[]})";
  EXPECT_EQ(ToJson(Example(), JsonLayout::Compact),
            R"({"typename":"ryx.object.Array",)" + schema +
                R"(,"objects":[{"typename":"ryx.object.Int32","value":7},)"
                R"({"typename":"ryx.object.Dictionary","properties":[{"key":"name","value":)"
                R"({"typename":"ryx.object.String","value":"abc"}}],)" +
                schema + "}]}");
  std::string const xml =
      boost::erase_all_copy(boost::erase_all_copy(ToXml(Example()), "\t"), "\n");
  std::string const xmlSchema =
      R"(<required><type>0</type><child_types size="dynamic"/></required>)";
  EXPECT_EQ(xml, R"(<?xml version="1.0" encoding="utf-8"?><cereal><typename>ryx.object.Array)"
                 "</typename>" + xmlSchema + R"(<objects size="dynamic"><value0>)"
                 "<typename>ryx.object.Int32</typename><value>7</value></value0><value1>"
                 R"(<typename>ryx.object.Dictionary</typename><properties size="dynamic">)"
                 "<value0><key>name</key><value><typename>ryx.object.String</typename>"
                 "<value>abc</value></value></value0></properties>" +
                     xmlSchema + "</value1></objects></cereal>");
  std::string const binary =
      test::Little + Id("ryx.object.Array") + Bytes(std::uint32_t{0}) + Bytes(std::uint64_t{0}) +
      Bytes(std::uint64_t{2}) + Id("ryx.object.Int32") + Bytes(std::int32_t{7}) +
      Id("ryx.object.Dictionary") + Bytes(std::uint64_t{1}) + Bytes(std::uint64_t{4}) + "name" +
      Id("ryx.object.String") + Bytes(std::uint64_t{3}) + "abc" + Bytes(std::uint32_t{0}) +
      Bytes(std::uint64_t{0});
  EXPECT_EQ(ToBinary(Example()), binary);
  EXPECT_EQ(
      Render("{{typename}}:{{#objects}} [{{typename}}{{#is.typename.ryx.object.Int32}}="
             "{{value}}{{/is.typename.ryx.object.Int32}}{{#properties}} {{key}}={{value.value}}"
             "{{/properties}}]{{/objects}} schema {{required.type}}",
             Example()),
      "ryx.object.Array: [ryx.object.Int32=7] [ryx.object.Dictionary name=abc] schema 0");
}

// An empty inner list must be there in the template data: were it missing,
// the section would find the outer list instead.
TEST(ContainerForms, WriteASchemaAsItsTypeAndChildTypesInEveryForm) {
  Required const arraysOfBools(Object::TypeIdOf<Array<Object>>(),
                               {Required(Object::TypeIdOf<Bool>())});
  auto const typed = std::make_shared<Array<Object>>(arraysOfBools, Array<Object>::Objects{});
  std::string const array = std::to_string(Object::TypeIdOf<Array<Object>>().GetValue());
  std::string const bools = std::to_string(Object::TypeIdOf<Bool>().GetValue());
  EXPECT_EQ(ToJson(typed, JsonLayout::Compact),
            R"({"typename":"ryx.object.Array","required":{"type":)" + array +
                R"(,"child_types":[{"type":)" + bools + R"(,"child_types":[]}]},"objects":[]})");
  EXPECT_EQ(ToBinary(typed), test::Little + Id("ryx.object.Array") + Id("ryx.object.Array") +
                                 Bytes(std::uint64_t{1}) + Id("ryx.object.Bool") +
                                 Bytes(std::uint64_t{0}) + Bytes(std::uint64_t{0}));
  EXPECT_EQ(Render("{{#required}}{{type}}:{{#child_types}}{{type}}[{{#child_types}}x"
                   "{{/child_types}}]{{/child_types}}{{/required}}",
                   typed),
            array + ":" + bools + "[]");
}

TEST(ContainerForms, RoundTripEveryKindAndNullChildrenInEveryForm) {
  auto const all = test::EveryKindInContainers();
  EXPECT_NO_THROW(ToTemplateData(all));
  for (auto const& loaded :
       {FromJson(ToJson(all)), FromXml(ToXml(all)), FromBinary(ToBinary(all))}) {
    ASSERT_TRUE(loaded);
    auto const& array = loaded->As<Array<Object>>();
    EXPECT_TRUE(array.Get(0)->EqualTo(*all->Get(0)));
    EXPECT_TRUE(array.Get(1)->EqualTo(*all->Get(1)));
    // The pointee is not part of any form: only its type comes back.
    auto const& pointer = array.Get(2)->As<Pointer<Object, void>>();
    EXPECT_EQ(pointer.GetPointer(), nullptr);
    EXPECT_EQ(pointer.GetPointeeType(), ryx::hash::MurmurThree32::MakeData("test.Pointee"));
    EXPECT_TRUE((array.Get(3)->Is<Pointer<Object, void const>>()));
    EXPECT_EQ(array.Get(4), nullptr);
  }
}

// The first of repeated keys (entries may hold their members in either
// order), elements unchecked against the schema, and null for a type no one
// registered.
TEST(ContainerForms, LoadWhatTheDocumentHolds) {
  auto const record = FromJson(R"({"typename": "ryx.object.Dictionary",
    "required": {"child_types": [], "type": 0}, "properties": [
      {"value": {"typename": "ryx.object.Int32", "value": 1}, "key": "k"},
      {"key": "k", "value": {"typename": "ryx.object.Int32", "value": 2}}]})");
  EXPECT_EQ(record->As<Dictionary<Object>>().Size(), 1u);
  EXPECT_EQ(record->As<Dictionary<Object>>().Get("k")->As<Int32>().Get(), 1);
  std::string const entry = Bytes(std::uint64_t{1}) + "k" + Id("ryx.object.Int32");
  std::string const binary = test::Little + Id("ryx.object.Dictionary") + Bytes(std::uint64_t{2}) +
                             entry + Bytes(std::int32_t{1}) + entry + Bytes(std::int32_t{2}) +
                             Bytes(std::uint32_t{0}) + Bytes(std::uint64_t{0});
  EXPECT_EQ(FromBinary(binary)->As<Dictionary<Object>>().Get("k")->As<Int32>().Get(), 1);
  auto const list = FromJson(R"({"typename": "ryx.object.Array", "required": {"type": )" +
                             std::to_string(Object::TypeIdOf<Int32>().GetValue()) +
                             R"(, "child_types": []}, "objects": [)"
                             R"({"typename": "ryx.object.Bool", "value": true},)"
                             R"({"typename": "no.such.Type"}]})");
  auto const& array = list->As<Array<Object>>();
  EXPECT_EQ(array.GetRequired(), Required(Object::TypeIdOf<Int32>()));
  EXPECT_TRUE(array.Get(0)->Is<Bool>());
  EXPECT_EQ(array.Get(1), nullptr);
}

}  // namespace
