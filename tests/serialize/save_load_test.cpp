#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>

#include "box.hpp"

namespace {

using namespace ryx::object;

class SaveLoad : public ::testing::Test {
 protected:
  void SetUp() override { test::RegisterBox(); }
  void TearDown() override { SetNestingLimit(DefaultNestingLimit); }
};

TEST_F(SaveLoad, EveryLibraryTypeHasAllItsFunctions) {
  for (auto const id :
       {Object::TypeIdOf<Bool>(), Object::TypeIdOf<Int32>(), Object::TypeIdOf<String>()}) {
    std::ostringstream os;
    os << Object::GetSaveFunctions(id) << ' ' << Object::GetLoadFunctions(id);
    EXPECT_EQ(os.str(),
              "{\"xml\":true,\"json\":true,\"binary\":true} "
              "{\"xml\":true,\"json\":true,\"binary\":true}");
    EXPECT_TRUE(std::get<3>(Object::GetSaveFunctions(id)));
  }
}

TEST_F(SaveLoad, ASaveFunctionRefusesAnotherKind) {
  auto const save = std::get<1>(Object::GetSaveFunctions(Object::TypeIdOf<Int32>()));
  std::ostringstream text;
  cereal::JSONOutputArchive archive(text);
  EXPECT_THROW(save(String("x"), archive), BadCast);
}

TEST_F(SaveLoad, LoadKeepsThePreviousValueWhenItFails) {
  std::shared_ptr<Object> value = std::make_shared<Int32>(5);
  std::istringstream in(R"({"typename":"ryx.object.Int32","value":"five"})");
  cereal::JSONInputArchive archive(in);
  EXPECT_THROW(Load(archive, value), cereal::archive::JsonParseError);
  EXPECT_EQ(value->As<Int32>().Get(), 5);
}

TEST_F(SaveLoad, ADirectLoadReadsTheTypeRecordAndRefusesAnotherType) {
  auto const load = std::get<1>(Object::GetLoadFunctions(Object::TypeIdOf<Int32>()));
  Int32 value(1);
  {
    std::istringstream in(R"({"typename":"ryx.object.Int32","value":8})");
    cereal::JSONInputArchive archive(in);
    load(value, archive);
    EXPECT_EQ(value.Get(), 8);
  }
  std::istringstream in(R"({"typename":"ryx.object.String","value":9})");
  cereal::JSONInputArchive archive(in);
  try {
    load(value, archive);
    FAIL();
  } catch (std::runtime_error const& error) {
    EXPECT_STREQ(error.what(),
                 "Cannot load a value of type \"ryx.object.String\" into a ryx.object.Int32");
  }
  EXPECT_EQ(value.Get(), 8);
  EXPECT_TRUE(value.Is<Int32>());
}

TEST_F(SaveLoad, ADirectBinaryLoadRefusesAnotherTypeId) {
  auto const load = std::get<2>(Object::GetLoadFunctions(Object::TypeIdOf<Int32>()));
  std::string const bytes = ToBinary(std::make_shared<UInt32>(3));
  std::istringstream in(bytes);
  cereal::PortableBinaryInputArchive archive(in);
  Int32 value(1);
  EXPECT_THROW(load(value, archive), std::runtime_error);
  EXPECT_EQ(value.Get(), 1);
}

TEST_F(SaveLoad, SavesAndLoadsValuesNestedUpToTheLimit) {
  // 999 boxes and their Int32: 1000 levels.
  auto const value = test::MakeBoxes(DefaultNestingLimit - 1);
  EXPECT_TRUE(FromJson(ToJson(value)));
  EXPECT_TRUE(FromXml(ToXml(value)));
  EXPECT_TRUE(FromBinary(ToBinary(value)));
}

TEST_F(SaveLoad, RefusesValuesNestedDeeperThanTheLimit) {
  auto const value = test::MakeBoxes(DefaultNestingLimit);
  EXPECT_THROW(ToJson(value), NestingLimitError);
  EXPECT_THROW(ToXml(value), NestingLimitError);
  EXPECT_THROW(ToBinary(value), NestingLimitError);
  SetNestingLimit(DefaultNestingLimit + 1);
  std::string const json = ToJson(value);
  std::string const xml = ToXml(value);
  std::string const binary = ToBinary(value);
  SetNestingLimit(DefaultNestingLimit);
  EXPECT_THROW(FromJson(json), NestingLimitError);
  EXPECT_THROW(FromXml(xml), NestingLimitError);
  EXPECT_THROW(FromBinary(binary), NestingLimitError);
  // The count starts again after a failure.
  EXPECT_TRUE(FromJson(ToJson(std::make_shared<Int32>(1))));
}

TEST_F(SaveLoad, RefusesAMillionNestedValuesInTheBinaryForm) {
  std::uint32_t const box = ryx::hash::MurmurThree32::MakeData(test::BoxName).GetValue();
  std::string stream = "\x01";
  for (int i = 0; i != 1000000; ++i) {
    stream.append(reinterpret_cast<char const*>(&box), 4);
  }
  EXPECT_THROW(FromBinary(stream), NestingLimitError);
}

TEST_F(SaveLoad, RefusesSchemasNestedDeeperThanTheLimit) {
  SetNestingLimit(3);
  Required deep(Object::TypeIdOf<Int32>());
  for (int i = 0; i != 3; ++i) {
    deep = Required{deep};
  }
  std::ostringstream text;
  cereal::JSONOutputArchive archive(text);
  EXPECT_THROW(archive(cereal::make_nvp("required", deep)), NestingLimitError);
  std::string const document =
      R"({"required":{"type":0,"child_types":[{"type":0,"child_types":[{"type":0,"child_types":[{"type":1,"child_types":[]}]}]}]}})";
  std::istringstream in(document);
  cereal::JSONInputArchive input(in);
  Required loaded;
  EXPECT_THROW(input(cereal::make_nvp("required", loaded)), NestingLimitError);
  EXPECT_EQ(GetNestingLimit(), 3u);
}

TEST_F(SaveLoad, SaveOfAnUnregisteredTypeIsALogicError) {
  struct Stray : Object {
    Stray() : Object(ryx::hash::MurmurThree32::MakeData("test.serialize.Stray")) {}
    void Set(Object const&) override {}
    bool EqualTo(Object const&) const override { return false; }
  };
  EXPECT_THROW(ToJson(std::make_shared<Stray>()), std::logic_error);
  std::ostringstream text;
  cereal::JSONOutputArchive archive(text);
  try {
    Stray const stray;
    stray.Serialize(archive);
    FAIL();
  } catch (std::logic_error const& error) {
    EXPECT_NE(std::string(error.what()).find("The class has not been registered: "),
              std::string::npos);
    EXPECT_NE(std::string(error.what()).find("Stray"), std::string::npos) << error.what();
  }
}

TEST_F(SaveLoad, SaveWithoutAFunctionForTheArchiveNamesTheType) {
  // The test kind has no template-data function.
  try {
    ToTemplateData(test::MakeBoxes(1));
    FAIL();
  } catch (std::runtime_error const& error) {
    EXPECT_EQ(std::string(error.what()),
              std::string("No serialization function available: ") + test::BoxName);
  }
}

}  // namespace
