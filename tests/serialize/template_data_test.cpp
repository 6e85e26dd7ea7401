#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using namespace ryx::object;

mstch::map const& AsMap(mstch::node const& node) { return boost::get<mstch::map>(node); }

std::string ValueText(std::shared_ptr<Object const> const& value) {
  return boost::get<std::string>(AsMap(ToTemplateData(value)).at("value"));
}

TEST(TemplateData, WritesNumbersAsDecimalText) {
  EXPECT_EQ(ValueText(std::make_shared<Int8>(65)), "65");
  EXPECT_EQ(ValueText(std::make_shared<UInt8>(200)), "200");
  EXPECT_EQ(ValueText(std::make_shared<Int64>(-5)), "-5");
  EXPECT_EQ(ValueText(std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max())),
            "18446744073709551615");
  EXPECT_EQ(ValueText(std::make_shared<Float>(0.1f)), "0.1");
  EXPECT_EQ(ValueText(std::make_shared<Double>(1e20)), "1e+20");
  EXPECT_EQ(ValueText(std::make_shared<Double>(100000)), "100000");
  EXPECT_EQ(ValueText(std::make_shared<Double>(1000000)), "1e+06");
  EXPECT_EQ(ValueText(std::make_shared<Double>(3.14159265)), "3.14159");
  EXPECT_EQ(ValueText(std::make_shared<String>("text")), "text");
}

TEST(TemplateData, WritesBooleansAsBoolNodes) {
  EXPECT_EQ(boost::get<bool>(AsMap(ToTemplateData(std::make_shared<Bool>(true))).at("value")),
            true);
  EXPECT_EQ(Render("{{#value}}on{{/value}}{{^value}}off{{/value}}", std::make_shared<Bool>(false)),
            "off");
}

TEST(TemplateData, PlacesTypeFlagsBesideTheTypeName) {
  mstch::map const root = AsMap(ToTemplateData(std::make_shared<Int32>(7)));
  EXPECT_EQ(boost::get<std::string>(root.at("typename")), "ryx.object.Int32");
  mstch::map const& ryx = AsMap(AsMap(AsMap(root.at("is")).at("typename")).at("ryx"));
  EXPECT_TRUE(boost::get<bool>(AsMap(ryx.at("object")).at("Int32")));
  EXPECT_EQ(root.size(), 3u);
  EXPECT_EQ(Render("{{#is.typename.ryx.object.Int32}}int {{value}}{{/is.typename.ryx.object.Int32}}"
                   "{{#is.typename.ryx.object.String}}string{{/is.typename.ryx.object.String}}",
                   std::make_shared<Int32>(7)),
            "int 7");
}

TEST(TemplateData, WritesANullValueAsAnEmptyTypeNameWithoutFlags) {
  mstch::map const root = AsMap(ToTemplateData(nullptr));
  ASSERT_EQ(root.size(), 1u);
  EXPECT_EQ(boost::get<std::string>(root.at("typename")), "");
}

TEST(TemplateData, WritesASchemaAsNestedMapsAndArrays) {
  ryx::templating::serialize::archive::output::Data archive;
  archive(cereal::make_nvp("required", Required{Required(Object::TypeIdOf<Bool>())}));
  mstch::map const& required = AsMap(AsMap(archive.GetRoot()).at("required"));
  EXPECT_EQ(boost::get<std::string>(required.at("type")), "0");
  auto const& children = boost::get<mstch::array>(required.at("child_types"));
  ASSERT_EQ(children.size(), 1u);
  EXPECT_EQ(boost::get<std::string>(AsMap(children[0]).at("type")),
            std::to_string(Object::TypeIdOf<Bool>().GetValue()));
  EXPECT_TRUE(boost::get<mstch::array>(AsMap(children[0]).at("child_types")).empty());
}

TEST(TemplateDataArchive, AppendsToArraysAndRefusesToCloseTheRoot) {
  ryx::templating::serialize::archive::output::Data archive;
  archive.SetNextName("items");
  EXPECT_EQ(archive.GetNextName(), "items");
  archive.StartNode();
  archive.MakeArray(2);
  archive.SaveValue(1);
  archive.SaveValue(std::string("two"));
  archive.FinishNode();
  EXPECT_EQ(archive.GetNextName(), "");
  auto const& items = boost::get<mstch::array>(AsMap(archive.GetRoot()).at("items"));
  ASSERT_EQ(items.size(), 2u);
  EXPECT_EQ(boost::get<std::string>(items[0]), "1");
  EXPECT_THROW(archive.FinishNode(), std::logic_error);
}

}  // namespace
