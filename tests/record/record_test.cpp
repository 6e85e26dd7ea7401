// Records: a class of the user's with a member of every supported kind saves
// and loads in every form, copies, compares, walks, is checked by schemas,
// keeps a failed load from changing it, and reads and writes plain values.
#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "record/everything.hpp"

namespace test {

// Registered only while a test holds a registration.
struct ScopedOnly {
  int number = 0;
};

constexpr auto DescribeRecord(ryx::type::Tag<ScopedOnly>) {
  return ryx::object::record::Description("test.record.ScopedOnly",
                                          ryx::object::record::Member("number", &ScopedOnly::number));
}

}  // namespace test

namespace {

using namespace ryx::object;
using test::Everything;
using test::EverythingRecord;
using test::Full;
using test::OtherRecord;

std::shared_ptr<Object> Loaded(std::string const& form, std::shared_ptr<Object const> const& value) {
  if (form == "json") {
    return FromJson(ToJson(value));
  }
  if (form == "json compact through archive") {
    return FromJsonThroughArchive(ToJsonThroughArchive(value, JsonLayout::Compact));
  }
  if (form == "xml") {
    return FromXml(ToXml(value));
  }
  if (form == "binary") {
    return FromBinary(ToBinary(value));
  }
  return FromBinaryThroughArchive(ToBinaryThroughArchive(value));
}

TEST(Record, RoundTripsInEveryFormAloneAndInsideContainers) {
  auto const full = Full();
  full->next = Full();  // a record as a record's child
  auto const inArray = std::make_shared<Array<Object>>(Array<Object>::Objects{full, Full()});
  for (char const* form : {"json", "json compact through archive", "xml", "binary",
                           "binary through archive"}) {
    SCOPED_TRACE(form);
    for (std::shared_ptr<Object const> value :
         {std::shared_ptr<Object const>(full), std::shared_ptr<Object const>(inArray)}) {
      auto const loaded = Loaded(form, value);
      ASSERT_TRUE(loaded);
      EXPECT_TRUE(loaded->EqualTo(*value));
      EXPECT_FALSE(loaded->GetOptions().Test(Option::deserializing));
    }
  }
  // The direct paths hand such values to the archives, byte for byte alike.
  EXPECT_EQ(ToJson(inArray, JsonLayout::Compact), ToJsonThroughArchive(inArray, JsonLayout::Compact));
  EXPECT_EQ(ToBinary(inArray), ToBinaryThroughArchive(inArray));
}

TEST(Record, WritesTheTypeRecordThenItsMembersInOrder) {
  auto const other = std::make_shared<OtherRecord>(test::Other{5});
  EXPECT_EQ(ToJson(other, JsonLayout::Compact), R"({"typename":"test.record.Other","number":5})");
  EXPECT_NE(ToXml(other).find("<typename>test.record.Other</typename>\n\t<number>5</number>"),
            std::string::npos);
  std::uint32_t const id = Object::TypeIdOf<OtherRecord>().GetValue();
  EXPECT_EQ(ToBinary(other), "\x01" + std::string(reinterpret_cast<char const*>(&id), 4) +
                                 std::string("\x05\0\0\0", 4));

  auto const full = Full();
  std::string const json = ToJson(full, JsonLayout::Compact);
  std::size_t at = json.find("\"typename\"");
  EXPECT_EQ(at, 1u);
  record::ForEachMember<Everything>([&](auto const& member) {
    std::size_t const found = json.find(std::string("\"") + member.name + "\":");
    EXPECT_GT(found, at) << member.name;
    at = found;
  });
  EXPECT_NE(json.find(R"("next":{"typename":""})"), std::string::npos) << json;
  EXPECT_NE(json.find(R"("numbers":[1,-2,3])"), std::string::npos) << json;
}

TEST(Record, RendersItsMembersAndChildrenIntoTemplates) {
  auto const full = Full();
  EXPECT_EQ(Render("{{#is.typename.test.record.Everything}}{{name}}|{{tiny}}|{{#numbers}}{{.}},"
                   "{{/numbers}}|{{#flag}}on{{/flag}}|{{#child}}{{#objects}}{{number}}{{/objects}}"
                   "{{/child}}|{{next.typename}}{{/is.typename.test.record.Everything}}",
                   full),
            "line\nbreak \xc3\xa9 &amp; &lt;x&gt;|-128|1,-2,3,|on|-7|");
}

TEST(Record, CopiesDeeplyEqualsItsCopyAndDiffersAfterAnyOneMemberChanges) {
  auto const full = Full();
  auto const copy = std::static_pointer_cast<EverythingRecord>(Object::Copy(*full));
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->EqualTo(*full));
  EXPECT_NE(copy->child, full->child);  // a new child, not the same one

  // One change per member kind: each alone makes the records differ.
  std::vector<std::function<void(Everything&)>> const changes = {
      [](Everything& e) { e.flag = !e.flag; },
      [](Everything& e) { ++e.tiny; },
      [](Everything& e) { --e.small; },
      [](Everything& e) { ++e.number; },
      [](Everything& e) { --e.big; },
      [](Everything& e) { --e.byte; },
      [](Everything& e) { --e.word; },
      [](Everything& e) { ++e.count; },
      [](Everything& e) { --e.size; },
      [](Everything& e) { e.ratio = 0.2f; },
      [](Everything& e) { e.score = 0; },
      [](Everything& e) { e.name += "!"; },
      [](Everything& e) { e.numbers.back() = 4; },
      [](Everything& e) { e.words.pop_back(); },
      [](Everything& e) { e.flags[1] = true; },
      [](Everything& e) { e.child->As<Array<Object>>().Append(std::make_shared<Int32>(1)); },
      [](Everything& e) { e.child = nullptr; },
      [](Everything& e) { e.next = std::make_shared<Int32>(0); },
  };
  for (std::size_t i = 0; i != changes.size(); ++i) {
    auto const changed = std::static_pointer_cast<EverythingRecord>(Object::Copy(*full));
    changes[i](changed->Get());
    EXPECT_FALSE(changed->EqualTo(*full)) << "change " << i;
    EXPECT_FALSE(full->EqualTo(*changed)) << "change " << i;
  }
  EXPECT_FALSE(full->EqualTo(Int32(0)));
  EXPECT_THROW(full->Set(Int32(0)), BadCast);
}

TEST(Record, WalksItsNonNullChildrenInMemberOrder) {
  auto const full = Full();
  std::vector<Object const*> walked;
  for (Object const& child : static_cast<Object const&>(*full)) {
    walked.push_back(&child);
  }
  EXPECT_EQ(walked, std::vector<Object const*>{full->child.get()});
  full->next = std::make_shared<Int32>(1);
  walked.clear();
  for (Object& child : static_cast<Object&>(*full)) {
    walked.push_back(&child);
  }
  EXPECT_EQ(walked, (std::vector<Object const*>{full->child.get(), full->next.get()}));
  EXPECT_EQ(OtherRecord().Begin(), OtherRecord().End());
}

TEST(Record, IsCheckedBySchemasLikeAnyKind) {
  Required const everything(Object::TypeIdOf<EverythingRecord>());
  EXPECT_NO_THROW(everything.Check(*Full()));
  EXPECT_THROW(everything.Check(OtherRecord()), std::invalid_argument);
  Array<Object> records(everything, {Full()});
  EXPECT_THROW(records.Append(std::make_shared<OtherRecord>()), std::invalid_argument);
  EXPECT_EQ(records.Size(), 1u);
  EXPECT_TRUE(Object::Make(Object::TypeIdOf<EverythingRecord>())->EqualTo(EverythingRecord()));
  EXPECT_STREQ(Object::TypeName(Object::TypeIdOf<OtherRecord>()), "test.record.Other");
}

// A load that fails half way, through a record's own load function and not
// through Load, leaves the record as it was.
TEST(Record, SurvivesAFailedLoadUnchanged) {
  auto const full = Full();
  auto const before = Object::Copy(*full);
  auto const loadFunctions = Object::GetLoadFunctions(full->GetType());

  std::string json = ToJson(full, JsonLayout::Compact);
  json.replace(json.find("\"words\":["), 9, "\"words\":[7,");
  std::istringstream jsonIn(json);
  cereal::JSONInputArchive jsonArchive(jsonIn);
  EXPECT_ANY_THROW(std::get<1>(loadFunctions)(*full, jsonArchive));
  EXPECT_TRUE(full->EqualTo(*before));

  std::string bytes = ToBinary(full);
  std::istringstream binaryIn(bytes.substr(0, bytes.size() - 3));
  cereal::PortableBinaryInputArchive binaryArchive(binaryIn);
  EXPECT_ANY_THROW(std::get<2>(loadFunctions)(*full, binaryArchive));
  EXPECT_TRUE(full->EqualTo(*before));

  // Another kind's document is refused by the type record.
  std::istringstream otherIn(ToJson(std::make_shared<OtherRecord>()));
  cereal::JSONInputArchive otherArchive(otherIn);
  EXPECT_THROW(std::get<1>(loadFunctions)(*full, otherArchive), std::runtime_error);
  EXPECT_TRUE(full->EqualTo(*before));
}

TEST(Record, RefusesBadDocumentsWithTheErrorsOfTheBuiltInKinds) {
  std::string const typeName = R"({"typename":"test.record.Other")";
  EXPECT_THROW(FromJson(typeName + "}"), cereal::Exception);  // "number" missing
  EXPECT_THROW(FromJson(typeName + R"(,"number":"5"})"), cereal::archive::JsonParseError);
  EXPECT_THROW(FromJson(typeName + R"(,"number":2147483648})"), cereal::archive::JsonParseError);
  EXPECT_TRUE(FromJson(typeName + R"(,"extra":1,"number":5})")->EqualTo(OtherRecord({5})));

  std::string bytes = ToBinary(Full());
  // The first member is the bool: 2 is no bool byte.
  bytes[5] = 2;
  EXPECT_THROW(FromBinary(bytes), std::runtime_error);

  // A string claiming more bytes than the stream holds fails when it ends.
  test::Everything value;
  value.name = "abc";
  std::string named = ToBinary(std::make_shared<EverythingRecord>(value));
  std::size_t const length = named.find(std::string("\x03\0\0\0\0\0\0\0abc", 11));
  ASSERT_NE(length, std::string::npos);
  named.replace(length, 8, std::string("\xff\xff\xff\xff\xff\xff\xff\x7f", 8));
  EXPECT_THROW(FromBinary(named), cereal::Exception);

  value.name = "bell \a";
  EXPECT_THROW(ToXml(std::make_shared<EverythingRecord>(value)), std::runtime_error);
}

// In the XML form a failure inside a child member is placed at the element of
// the value that failed, reached through the members' elements.
TEST(Record, PlacesAFailureInsideAChildMemberAtItsElementInXml) {
  // The Int32 child of the record that is the member "next".
  std::string chain = ToXml(test::Chain(2));
  chain.replace(chain.find("<value>1</value>"), 16, "<value>one</value>");
  try {
    FromXml(chain);
    ADD_FAILURE() << "loaded";
  } catch (std::invalid_argument const& error) {
    EXPECT_STREQ(error.what(), "stoi");
    ASSERT_NE(FindLocation(error), nullptr);
    EXPECT_EQ(FindLocation(error)->path, "/next/child");
    EXPECT_EQ(FindLocation(error)->offset, chain.find("<child>", chain.find("<next>")));
    EXPECT_EQ(FindLocation(error)->column, 3u);
  }
}

TEST(Record, RegistersForTheLifeOfAScopedRegistration) {
  ASSERT_EQ(Object::TypeName(Object::TypeIdOf<Record<test::ScopedOnly>>()), nullptr);
  {
    record::Registration<test::ScopedOnly> registration;
    EXPECT_STREQ(Object::TypeName(Object::TypeIdOf<Record<test::ScopedOnly>>()),
                 "test.record.ScopedOnly");
    EXPECT_TRUE(FromJson(ToJson(std::make_shared<Record<test::ScopedOnly>>())));
  }
  EXPECT_EQ(Object::TypeName(Object::TypeIdOf<Record<test::ScopedOnly>>()), nullptr);
}

// Plain values, as plain JSON reads them.
std::shared_ptr<Object> Int(long value) { return std::make_shared<Int64>(value); }
std::shared_ptr<Object> Real(double value) { return std::make_shared<Double>(value); }

TEST(Record, WritesItsPlainFormAsADictionaryOfItsMembers) {
  auto const full = Full();
  PlainFunctions const plain = ryx::object::registry::Get().GetMap()->at(full->GetType()).GetPlainFunctions();
  ASSERT_TRUE(plain);
  auto const saved = plain.save(*full);
  auto const& members = saved->As<Dictionary<Object>>();
  EXPECT_EQ(members.Size(), 17u);
  EXPECT_TRUE(members.Get("tiny")->EqualTo(Int8(-128)));
  EXPECT_TRUE(members.Get("size")->EqualTo(UInt64(std::numeric_limits<unsigned long>::max())));
  EXPECT_TRUE(members.Get("words")->GetRequired() == Required(Object::TypeIdOf<String>()));
  EXPECT_EQ(members.Get("child"), full->child);
  EXPECT_EQ(members.GetProperties().at("next"), nullptr);

  // What it wrote loads back, and so do the kinds plain JSON reads instead.
  auto const loaded = std::make_shared<EverythingRecord>();
  plain.load(*loaded, *saved);
  EXPECT_TRUE(loaded->EqualTo(*full));
}

TEST(Record, ReadsAndWritesPlainJsonAsAnObjectOfItsMembers) {
  auto const other = std::make_shared<OtherRecord>(test::Other{5});
  EXPECT_EQ(ToPlainJson(other, JsonLayout::Compact), R"({"number":5})");
  Required const otherSchema(Object::TypeIdOf<OtherRecord>());
  EXPECT_TRUE(FromPlainJson(R"({"number":5})", otherSchema)->EqualTo(*other));
  EXPECT_THROW(FromPlainJson(R"({"number":300,"extra":1})", otherSchema), std::exception);
  EXPECT_THROW(FromPlainJson(R"({"number":2.5})", otherSchema), std::exception);

  // Every member kind, and records inside records and arrays.
  auto const full = Full();
  full->next = Full();
  std::string const text = ToPlainJson(full);
  auto const loaded = FromPlainJson(text, Required(Object::TypeIdOf<EverythingRecord>()));
  // (written in the dictionary's order, which no one promises)
  ASSERT_TRUE(loaded && loaded->Is<EverythingRecord>());
  auto const& record = loaded->As<EverythingRecord>();
  // A child reads as plain JSON makes it: the array of the Other record is
  // an array of a dictionary now, the record under "next" a dictionary.
  EXPECT_EQ(record.name, full->name);
  EXPECT_EQ(record.size, full->size);
  EXPECT_EQ(record.flags, full->flags);
  EXPECT_TRUE(record.next->Is<Dictionary<Object>>());
  Required const everything(Object::TypeIdOf<EverythingRecord>());
  EXPECT_TRUE(FromPlainJson(ToPlainJson(loaded), everything)->EqualTo(*loaded));
}

TEST(Record, FitsPlainValuesToItsMembersOrRefusesThemNamingTheMember) {
  PlainFunctions const plain =
      ryx::object::registry::Get().GetMap()->at(Object::TypeIdOf<EverythingRecord>()).GetPlainFunctions();
  auto const full = Full();
  struct Case {
    char const* member;
    std::shared_ptr<Object> value;
    char const* refusal;  // the message, or null when the value fits
  };
  auto const bigUnsigned = std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max());
  auto const mixed = std::make_shared<Array<Object>>(Array<Object>::Objects{Int(1), Real(2.5)});
  std::vector<Case> const cases = {
      {"tiny", Int(-128), nullptr},
      {"tiny", Int(300), "member 'tiny': 300 is out of the range of ryx.object.Int8"},
      {"byte", Int(-1), "member 'byte': -1 is out of the range of ryx.object.UInt8"},
      {"size", bigUnsigned, nullptr},
      {"big", bigUnsigned,
       "member 'big': 18446744073709551615 is out of the range of ryx.object.Int64"},
      {"number", Real(5.0),
       "member 'number': ryx.object.Int32 takes integers only, not the number 5"},
      {"score", Int(-3), nullptr},
      {"ratio", Real(1e300), "member 'ratio': 1e+300 is out of the range of ryx.object.Float"},
      {"flag", Int(1), "member 'flag': expected ryx.object.Bool, found ryx.object.Int64"},
      {"name", Int(1), "member 'name': expected ryx.object.String, found ryx.object.Int64"},
      {"numbers", mixed,
       "member 'numbers', element 1: ryx.object.Int32 takes integers only, not the number 2.5"},
      {"words", Int(1), "member 'words': expected ryx.object.Array, found ryx.object.Int64"},
      {"child", Real(1), nullptr},
      {"next", nullptr, nullptr},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.member);
    auto const document = std::const_pointer_cast<Dictionary<Object>>(
        std::static_pointer_cast<Dictionary<Object> const>(plain.save(*full)));
    *document->GetSlot(c.member) = c.value;
    auto const loaded = Object::Copy(*full);
    if (c.refusal == nullptr) {
      plain.load(*loaded, *document);
      continue;
    }
    try {
      plain.load(*loaded, *document);
      ADD_FAILURE() << "loaded";
    } catch (std::invalid_argument const& e) {
      EXPECT_STREQ(e.what(), c.refusal);
    }
    EXPECT_TRUE(loaded->EqualTo(*full));
  }

  auto const document = std::const_pointer_cast<Dictionary<Object>>(
      std::static_pointer_cast<Dictionary<Object> const>(plain.save(*full)));
  document->Assign("extra", Int(1));
  EXPECT_THROW(plain.load(*full, *document), std::invalid_argument);
  document->Pop("extra");
  document->Pop("name");
  EXPECT_THROW(plain.load(*full, *document), std::invalid_argument);
  EXPECT_THROW(plain.load(*full, Int32(1)), std::invalid_argument);
}

}  // namespace
