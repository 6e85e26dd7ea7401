// Save and Load across the forms: the registered functions, failures that
// keep the target, and the nesting limit.
#include "serialize/box.hpp"
#include "support.hpp"

#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;
using ryx::object::testing::Unregistered;

class SaveLoad : public ::testing::Test {
 protected:
  void SetUp() override { test::RegisterBox(); }
  void TearDown() override { SetNestingLimit(DefaultNestingLimit); }
};

// The array's schema is read before its list fails.
TEST_F(SaveLoad, AFailedLoadKeepsThePreviousValueAndAContainerAsItWas) {
  std::shared_ptr<Object> value = std::make_shared<Int32>(5);
  std::istringstream in(R"({"typename":"ryx.object.Int32","value":"five"})");
  cereal::JSONInputArchive archive(in);
  EXPECT_THROW(Load(archive, value), cereal::archive::JsonParseError);
  EXPECT_EQ(value->As<Int32>().Get(), 5);
  Array<Object> target(ryx::object::testing::Int32Schema, {std::make_shared<Int32>(9)});
  std::istringstream list(
      R"({"typename":"ryx.object.Array","required":{"type":0,"child_types":[]},"objects":5})");
  cereal::JSONInputArchive listArchive(list);
  EXPECT_THROW(target.Serialize(listArchive), cereal::archive::JsonParseError);
  EXPECT_EQ(target.Size(), 1u);
  EXPECT_EQ(target.GetRequired(), ryx::object::testing::Int32Schema);
}

TEST_F(SaveLoad, ADirectLoadReadsTheTypeRecordAndRefusesAnotherType) {
  auto const loads = Object::GetLoadFunctions(Object::TypeIdOf<Int32>());
  Int32 value(1);
  std::istringstream good(R"({"typename":"ryx.object.Int32","value":8})");
  cereal::JSONInputArchive goodArchive(good);
  std::get<1>(loads)(value, goodArchive);
  EXPECT_EQ(value.Get(), 8);
  std::istringstream bad(R"({"typename":"ryx.object.String","value":9})");
  cereal::JSONInputArchive badArchive(bad);
  EXPECT_EQ(MessageOf<std::runtime_error>([&] { std::get<1>(loads)(value, badArchive); }),
            "Cannot load a value of type \"ryx.object.String\" into a ryx.object.Int32");
  EXPECT_EQ(value.Get(), 8);
  // The binary form names the type by its id.
  std::istringstream bytes(ToBinary(std::make_shared<UInt32>(3)));
  cereal::PortableBinaryInputArchive binary(bytes);
  EXPECT_THROW(std::get<2>(loads)(value, binary), std::runtime_error);
  EXPECT_EQ(value.Get(), 8);
}

// Each form after the failures of the one before: the count starts again.
TEST_F(SaveLoad, SavesAndLoadsValuesNestedUpToTheLimitAndNoDeeper) {
  // 999 boxes and their Int32: 1000 levels.
  auto const value = test::MakeBoxes(DefaultNestingLimit - 1);
  auto const deeper = test::MakeBoxes(DefaultNestingLimit);
  using SaveForm = std::string (*)(std::shared_ptr<Object const> const&);
  std::pair<SaveForm, std::shared_ptr<Object> (*)(std::string_view)> const forms[] = {
      {[](std::shared_ptr<Object const> const& v) { return ToJson(v); }, FromJson},
      {ToXml, FromXml},
      {ToBinary, FromBinary}};
  for (auto const& [save, load] : forms) {
    EXPECT_TRUE(load(save(value)));
    EXPECT_THROW(save(deeper), NestingLimitError);
    SetNestingLimit(DefaultNestingLimit + 1);
    std::string const document = save(deeper);
    SetNestingLimit(DefaultNestingLimit);
    EXPECT_THROW(load(document), NestingLimitError);
  }
  std::string millionBoxes = test::Little;
  for (int i = 0; i != 1000000; ++i) {
    millionBoxes += test::Id(test::BoxName);
  }
  EXPECT_THROW(FromBinary(millionBoxes), NestingLimitError);
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
  std::istringstream in(R"({"required":{"type":0,"child_types":[{"type":0,"child_types":[)"
                        R"({"type":0,"child_types":[{"type":1,"child_types":[]}]}]}]}})");
  cereal::JSONInputArchive input(in);
  Required loaded;
  EXPECT_THROW(input(cereal::make_nvp("required", loaded)), NestingLimitError);
  EXPECT_EQ(GetNestingLimit(), 3u);
  SetNestingLimit(0);  // taken as 1
  EXPECT_EQ(GetNestingLimit(), 1u);
}

TEST_F(SaveLoad, SavingAnotherKindAnUnregisteredTypeOrWithoutAFunctionFails) {
  EXPECT_THROW(ToJson(std::make_shared<Unregistered>()), std::logic_error);
  std::ostringstream text;
  cereal::JSONOutputArchive archive(text);
  auto const save = std::get<1>(Object::GetSaveFunctions(Object::TypeIdOf<Int32>()));
  EXPECT_THROW(save(String("x"), archive), BadCast);
  Unregistered const stray;
  EXPECT_EQ(MessageOf<std::logic_error>([&] { stray.Serialize(archive); }),
            "The class has not been registered: ryx::object::testing::Unregistered");
  // The test kind has no template-data function.
  EXPECT_EQ(MessageOf<std::runtime_error>([] { ToTemplateData(test::MakeBoxes(1)); }),
            std::string("No serialization function available: ") + test::BoxName);
}

}  // namespace
