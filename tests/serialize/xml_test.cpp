// What the XML reader accepts and refuses, before and after its depth check.
#include <ryx/object.hpp>

#include <boost/algorithm/string/join.hpp>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;

std::shared_ptr<Object> Load(std::string const& typeName, std::string const& text) {
  return FromXml("<cereal><typename>" + typeName + "</typename><value>" + text +
                 "</value></cereal>");
}

std::string Repeated(std::string const& text, std::size_t times) {
  return boost::algorithm::join(std::vector<std::string>(times, text), "");
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

TEST(XmlForm, RefusesMalformedEmptyAndCutDocuments) {
  for (char const* document : {"", "<cereal><typename>", "<other/>", "<cereal></cereal>",
                               "<cereal><typename>ryx.object.Int32</typename></cereal>"}) {
    EXPECT_THROW(FromXml(document), cereal::Exception) << document;
  }
  // The depth check must stop at the end of a document cut inside markup.
  for (char const* cut :
       {"<?xml versio", "<cereal a", "<cereal a=", "<cereal a='x", "<!DOCTYPE x [", "<a"}) {
    EXPECT_THROW(FromXml(cut), cereal::Exception) << cut;
    EXPECT_THROW(FromXml(std::string(cut) + '\0' + "<cereal/>"), cereal::Exception) << cut;
  }
}

// A million nested elements are refused before parsing, also where markup
// the parser reads as elements hides them; the deepest document let through
// is parsed.
TEST(XmlForm, CountsNestedElementsBeforeParsing) {
  EXPECT_THROW(FromXml("<cereal>" + Repeated("<a>", 1000000)), NestingLimitError);
  EXPECT_THROW(FromXml("<cereal>" + Repeated("<a>", 5000)), cereal::Exception);
  std::string const deep = Repeated("<a>", 100000);
  // An element name may contain quotes; attribute values may contain '>'.
  EXPECT_THROW(FromXml("<cereal><a\"" + deep + "\">"), NestingLimitError);
  EXPECT_THROW(FromXml("<cereal><b c='>'>" + deep), NestingLimitError);
  EXPECT_THROW(FromXml("<?xml version='?>' ?><cereal>" + deep), NestingLimitError);
  // A document type's bracketed part may quote '>' and "<!--".
  EXPECT_THROW(FromXml("<!DOCTYPE x [<!ENTITY e '><!--'>]><cereal>" + deep), NestingLimitError);
  // Comments and character data hold no elements.
  EXPECT_THROW(FromXml("<cereal><!--" + deep + "--></cereal>"), cereal::Exception);
  EXPECT_THROW(FromXml("<cereal><![CDATA[" + deep + "]]></cereal>"), cereal::Exception);
}

}  // namespace
