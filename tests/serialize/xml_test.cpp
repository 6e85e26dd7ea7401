// What the XML reader accepts and refuses, before and after its depth check.
#include <ryx/object.hpp>

#include <boost/algorithm/string/join.hpp>
#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <vector>

#include "support.hpp"

namespace {

using namespace ryx::object;
using ryx::object::testing::RunOnStack;

std::shared_ptr<Object> Load(std::string const& typeName, std::string const& text) {
  return FromXml("<cereal><typename>" + typeName + "</typename><value>" + text +
                 "</value></cereal>");
}

std::string Repeated(std::string const& text, std::size_t times) {
  return boost::algorithm::join(std::vector<std::string>(times, text), "");
}

// Where FromXml's failure on `document` was placed. The failure must be an
// Error with the message `what`, its type extended only by the location.
template <class Error>
Location FailureOf(std::string const& document, std::string const& what) {
  try {
    FromXml(document);
  } catch (Error const& error) {
    EXPECT_EQ(typeid(error), typeid(LocatedError<Error>)) << document;
    EXPECT_EQ(error.what(), what) << document;
    Location const* const location = FindLocation(error);
    return location != nullptr ? *location : Location();
  }
  ADD_FAILURE() << "no " << typeid(Error).name() << ": " << document;
  return {};
}

struct NestingLimit {
  explicit NestingLimit(std::size_t levels) { SetNestingLimit(levels); }
  ~NestingLimit() { SetNestingLimit(DefaultNestingLimit); }
};

void ExpectAt(Location const& location, std::string const& path, std::size_t line,
              std::size_t column) {
  EXPECT_TRUE(location.hasOffset);
  EXPECT_EQ(location.path, path);
  EXPECT_EQ(location.line, line);
  EXPECT_EQ(location.column, column);
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

// A value the archive refuses is placed at the element that holds it: the
// root, an array's item, a dictionary entry's "value", as deep as it lies.
TEST(XmlForm, PlacesARefusedValueAtItsElement) {
  std::string const root = "<?xml version=\"1.0\"?>\n  <cereal><typename>ryx.object.";
  ExpectAt(
      FailureOf<std::invalid_argument>(root + "Int32</typename><value>x</value></cereal>", "stoi"),
      "", 2, 3);
  ExpectAt(
      FailureOf<std::out_of_range>(root + "Double</typename><value>1e999</value></cereal>", "stod"),
      "", 2, 3);

  // Items count by position, whatever their names; comments are no items.
  std::string const array =
      "<typename>ryx.object.Array</typename><required><type>0</type><child_types/></required>";
  std::string const item = "<typename>ryx.object.Int32</typename><value>";
  ExpectAt(FailureOf<std::invalid_argument>("<cereal>" + array + "<objects>\n\t<value0>" + item +
                                                "1</value></value0>\n<!-- -->\t<it>" + item +
                                                "two</value></it></objects></cereal>",
                                            "stoi"),
           "/1", 3, 10);

  // Two levels down, under a key escaped in the path; the column counts
  // characters, not bytes.
  std::string const twoDown =
      "<cereal><typename>ryx.object.Dictionary</typename><properties>\n"
      "<value0><key>b</key><value>" +
      item +
      "1</value></value></value0>\n"
      "<value1><key>a/b~c</key><value>" +
      array +
      "<objects>\n"
      "  <!--\xc3\xa9--><value0><typename>ryx.object.UInt32</typename><value>-</value></value0>\n"
      "</objects></value></value1></properties></cereal>";
  Location const deep = FailureOf<std::invalid_argument>(twoDown, "stoul");
  ExpectAt(deep, "/a~1b~0c/0", 4, 11);
  EXPECT_EQ(deep.offset, twoDown.find("<value0><typename>ryx.object.UInt32"));

  // An entry without its value is placed at the entry.
  ExpectAt(FailureOf<cereal::Exception>("<cereal><typename>ryx.object.Dictionary</typename>\n"
                                        "<properties><value0><key>k</key><typo/></value0>"
                                        "</properties></cereal>",
                                        "XML Parsing failed - provided NVP (value) not found"),
           "/k", 2, 13);
}

TEST(XmlForm, PlacesNestingTooDeepAtTheFirstValueOrElementTooDeep) {
  NestingLimit const limit(2);
  std::string const array =
      "<typename>ryx.object.Array</typename><required><type>0</type><child_types/></required>";
  ExpectAt(FailureOf<NestingLimitError>(
               "<cereal>" + array + "<objects>\n<value0>" + array + "<objects>\n<value0>" + array +
                   "<objects/></value0></objects></value0></objects></cereal>",
               "Values are nested deeper than the nesting limit of 2 levels"),
           "/0/0", 3, 1);

  // Elements nested deeper than a document within the limit holds are
  // refused before parsing, at the first one too deep: the root and twelve.
  ExpectAt(FailureOf<NestingLimitError>(
               "<cereal>\n" + Repeated("<a>", 20),
               "XML elements are nested deeper than 13 levels, more than a document within the "
               "nesting limit of 2 levels holds"),
           "", 2, 37);
}

// A failure is placed by parsing the document again, from the frame the
// archive parsed it from: that must fit the stack too, also for documents as
// deep as the depth check lets through.
TEST(XmlForm, PlacesFailuresOfDocumentsAsDeepAsTheStackAllows) {
  NestingLimit const limit(1000000);
  std::string const array =
      "<typename>ryx.object.Array</typename><required><type>0</type><child_types/></required>";
  for (std::size_t depth = 10; depth <= 400; depth += 10) {
    std::string const document = "<cereal>" + Repeated(array + "<objects><value0>", depth) +
                                 "<typename>ryx.object.Int32</typename><value>x</value>" +
                                 Repeated("</value0></objects>", depth) + "</cereal>";
    std::string const outcome = RunOnStack(128 << 10, [&] { FromXml(document); });
    EXPECT_TRUE(outcome == "stoi" || outcome == "refused") << depth << ": " << outcome;
  }
}

// Text that is not XML is placed where the parser stopped; a document
// without the root element at its first element, or its end.
TEST(XmlForm, PlacesTextThatIsNotXmlWhereParsingStopped) {
  std::string const notXml =
      "XML Parsing failed - likely due to invalid characters or invalid naming";
  ExpectAt(FailureOf<cereal::Exception>("hello", notXml), "", 1, 1);
  ExpectAt(FailureOf<cereal::Exception>("<cereal>\n  <value a=1>2</value>", notXml), "", 2, 12);
  ExpectAt(FailureOf<cereal::Exception>("<cereal>\n  <typename/>\n", notXml), "", 3, 1);
  // The parser stops at a NUL byte.
  ExpectAt(FailureOf<cereal::Exception>(std::string("<cereal>\n\xc3\xa9<a\0>", 14), notXml), "", 2,
           4);

  std::string const noRoot =
      "Could not detect cereal root node - likely due to empty or invalid input";
  ExpectAt(FailureOf<cereal::Exception>("<?xml version=\"1.0\"?>\n <other/>", noRoot), "", 2, 2);
  ExpectAt(FailureOf<cereal::Exception>("\n\n", noRoot), "", 3, 1);
}

}  // namespace
