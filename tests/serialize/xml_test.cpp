#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;

std::string Document(std::string const& children) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<cereal>\n" + children + "</cereal>\n\n";
}

std::string Value(std::string const& typeName, std::string const& valueElement) {
  return Document("\t<typename>" + typeName + "</typename>\n\t" + valueElement + "\n");
}

std::shared_ptr<Object> Load(std::string const& typeName, std::string const& text) {
  return FromXml("<cereal><typename>" + typeName + "</typename><value>" + text +
                 "</value></cereal>");
}

TEST(XmlForm, WritesEveryPrimitiveAsTypenameAndValueElements) {
  EXPECT_EQ(ToXml(std::make_shared<Bool>(true)), Value("ryx.object.Bool", "<value>true</value>"));
  EXPECT_EQ(ToXml(std::make_shared<Int8>(65)), Value("ryx.object.Int8", "<value>65</value>"));
  EXPECT_EQ(ToXml(std::make_shared<UInt8>(200)), Value("ryx.object.UInt8", "<value>200</value>"));
  EXPECT_EQ(ToXml(std::make_shared<Int64>(std::numeric_limits<long>::min())),
            Value("ryx.object.Int64", "<value>-9223372036854775808</value>"));
  EXPECT_EQ(ToXml(std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max())),
            Value("ryx.object.UInt64", "<value>18446744073709551615</value>"));
  EXPECT_EQ(ToXml(std::make_shared<Double>(0.5)), Value("ryx.object.Double", "<value>0.5</value>"));
  EXPECT_EQ(ToXml(std::make_shared<String>("a<b")),
            Value("ryx.object.String", "<value>a&lt;b</value>"));
  EXPECT_EQ(ToXml(std::make_shared<String>(" padded")),
            Value("ryx.object.String", "<value xml:space=\"preserve\"> padded</value>"));
}

TEST(XmlForm, WritesANullValueAsAnEmptyTypename) {
  EXPECT_EQ(ToXml(nullptr), Document("\t<typename></typename>\n"));
  EXPECT_EQ(FromXml(ToXml(nullptr)), nullptr);
}

TEST(XmlForm, RoundTripsPrimitives) {
  std::shared_ptr<Object const> const values[] = {
      std::make_shared<Int8>(-128),      std::make_shared<UInt16>(65535),
      std::make_shared<Float>(0.1f),     std::make_shared<Double>(-1e-300),
      std::make_shared<String>("x & y"), std::make_shared<Bool>(false),
  };
  for (auto const& value : values) {
    auto const loaded = FromXml(ToXml(value));
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(loaded->EqualTo(*value)) << ToXml(value);
  }
}

TEST(XmlForm, ConvertsTextAsTheStandardConversionsDo) {
  EXPECT_EQ(Load("ryx.object.UInt32", "4294967296")->As<UInt32>().Get(), 0u);
  EXPECT_EQ(Load("ryx.object.Int8", "300")->As<Int8>().Get(), 44);
  EXPECT_TRUE(Load("ryx.object.Bool", "true")->As<Bool>().Get());
  EXPECT_FALSE(Load("ryx.object.Bool", "1")->As<Bool>().Get());
  EXPECT_THROW(Load("ryx.object.Int32", "seven"), std::invalid_argument);
  EXPECT_THROW(Load("ryx.object.Int64", "99999999999999999999"), std::out_of_range);
  EXPECT_THROW(Load("ryx.object.Double", "1e999"), std::out_of_range);
}

TEST(XmlForm, RefusesMalformedAndEmptyDocuments) {
  EXPECT_THROW(FromXml(""), cereal::Exception);
  EXPECT_THROW(FromXml("<cereal><typename>"), cereal::Exception);
  EXPECT_THROW(FromXml("<other/>"), cereal::Exception);
  EXPECT_THROW(FromXml("<cereal></cereal>"), cereal::Exception);
  EXPECT_THROW(FromXml("<cereal><typename>ryx.object.Int32</typename></cereal>"),
               cereal::Exception);
}

TEST(XmlForm, RefusesAMillionNestedElementsBeforeParsing) {
  std::string document = "<cereal>";
  for (int i = 0; i != 1000000; ++i) {
    document += "<a>";
  }
  EXPECT_THROW(FromXml(document), NestingLimitError);
}

TEST(XmlForm, CountsElementsHiddenBehindMarkupTheParserReadsAsElements) {
  std::string deep;
  for (int i = 0; i != 100000; ++i) {
    deep += "<a>";
  }
  // An element name may contain quotes; attribute values may contain '>'.
  EXPECT_THROW(FromXml("<cereal><a\"" + deep + "\">"), NestingLimitError);
  EXPECT_THROW(FromXml("<cereal><b c='>'>" + deep), NestingLimitError);
  EXPECT_THROW(FromXml("<?xml version='?>' ?><cereal>" + deep), NestingLimitError);
  // Comments and CDATA sections hold no elements.
  EXPECT_THROW(FromXml("<cereal><!--" + deep + "--></cereal>"), cereal::Exception);
}

TEST(XmlForm, RefusesDocumentsCutInsideMarkup) {
  for (char const* cut :
       {"<?xml versio", "<cereal a", "<cereal a=", "<cereal a='x", "<!DOCTYPE x [", "<a"}) {
    EXPECT_THROW(FromXml(cut), cereal::Exception) << cut;
    EXPECT_THROW(FromXml(std::string(cut) + '\0' + "<cereal/>"), cereal::Exception) << cut;
  }
}

TEST(XmlForm, ParsesTheDeepestDocumentTheDepthCheckLetsThrough) {
  std::string document = "<cereal>";
  for (int i = 0; i != 5000; ++i) {
    document += "<a>";
  }
  EXPECT_THROW(FromXml(document), cereal::Exception);
}

TEST(XmlForm, WritesTypeAttributesWhenTheArchiveAsksForThem) {
  std::ostringstream text;
  {
    cereal::XMLOutputArchive archive(text, cereal::XMLOutputArchive::Options().outputType(true));
    Save(archive, std::make_shared<Int16>(3));
    archive(cereal::make_nvp("required", Required(Object::TypeIdOf<Int16>())));
  }
  std::string const xml = text.str();
  EXPECT_NE(xml.find("<value type=\"short\">3</value>"), std::string::npos) << xml;
  EXPECT_NE(xml.find("<required type=\"ryx::object::Required\">"), std::string::npos) << xml;
  EXPECT_NE(xml.find("<type type=\"unsigned int\">"), std::string::npos) << xml;
  EXPECT_NE(xml.find("size=\"dynamic\"/>"), std::string::npos) << xml;
}

}  // namespace
