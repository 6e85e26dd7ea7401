// Every primitive kind in every form: the documents written for it, the
// null value, and round trips.
#include "serialize/box.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;
using test::Bytes;
using test::Id;
using test::Little;

std::string XmlDocument(std::string const& children) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<cereal>\n" + children + "</cereal>\n\n";
}

// One value and what each form writes for it after its type: the JSON value
// member, the XML value element, the binary bytes, and the template-data
// text (none for a Bool, which is a bool node).
using Written =
    std::tuple<std::shared_ptr<Object const>, std::string, std::string, std::string, char const*>;

std::vector<Written> EveryKind() {
  long const int64Min = std::numeric_limits<long>::min();
  unsigned long const uint64Max = std::numeric_limits<unsigned long>::max();
  return {
      {std::make_shared<Bool>(true), "true", "<value>true</value>", "\x01", nullptr},
      {std::make_shared<Int8>(65), "65", "<value>65</value>", "A", "65"},
      {std::make_shared<Int16>(-300), "-300", "<value>-300</value>", Bytes<std::int16_t>(-300),
       "-300"},
      {std::make_shared<Int32>(7), "7", "<value>7</value>", Bytes<std::int32_t>(7), "7"},
      {std::make_shared<Int64>(int64Min), "-9223372036854775808",
       "<value>-9223372036854775808</value>", Bytes(int64Min), "-9223372036854775808"},
      {std::make_shared<UInt8>(200), "200", "<value>200</value>", "\xC8", "200"},
      {std::make_shared<UInt16>(65535), "65535", "<value>65535</value>", "\xFF\xFF", "65535"},
      {std::make_shared<UInt32>(4294967295u), "4294967295", "<value>4294967295</value>",
       Bytes<std::uint32_t>(4294967295u), "4294967295"},
      {std::make_shared<UInt64>(uint64Max), "18446744073709551615",
       "<value>18446744073709551615</value>", std::string(8, '\xFF'), "18446744073709551615"},
      // Template data writes numbers as short decimal text.
      {std::make_shared<Float>(0.1f), "0.10000000149011612", "<value>0.10000000149011612</value>",
       Bytes<std::uint32_t>(0x3DCCCCCDu), "0.1"},
      {std::make_shared<Double>(1e6), "1000000.0", "<value>1000000</value>",
       Bytes<std::uint64_t>(0x412E848000000000ull), "1e+06"},
      {std::make_shared<String>("a<\"b"), R"("a<\"b")", "<value>a&lt;&quot;b</value>",
       Bytes<std::uint64_t>(4) + "a<\"b", "a<\"b"},
      {std::make_shared<String>(" padded"), R"(" padded")",
       "<value xml:space=\"preserve\"> padded</value>", Bytes<std::uint64_t>(7) + " padded",
       " padded"},
      {std::make_shared<String>(""), R"("")", "<value></value>", std::string(8, '\0'), ""},
  };
}

TEST(PrimitiveForms, EveryKindIsWrittenAsItsTypeAndValueInEveryForm) {
  for (auto const& [value, json, xml, binary, text] : EveryKind()) {
    std::string const name = Object::TypeName(value->GetType());
    SCOPED_TRACE(name + " " + json);
    EXPECT_EQ(ToJson(value),
              "{\n    \"typename\": \"" + name + "\",\n    \"value\": " + json + "\n}");
    EXPECT_EQ(ToXml(value), XmlDocument("\t<typename>" + name + "</typename>\n\t" + xml + "\n"));
    EXPECT_EQ(ToBinary(value), Little + Id(name.c_str()) + binary);
    // The type name, its flags for sections to test, and the value.
    mstch::map const data = boost::get<mstch::map>(ToTemplateData(value));
    EXPECT_EQ(data.size(), 3u);
    if (text != nullptr) {
      EXPECT_EQ(boost::get<std::string>(data.at("value")), text);
    } else {
      EXPECT_TRUE(boost::get<bool>(data.at("value")));
    }
  }
}

TEST(PrimitiveForms, ANullValueIsWrittenAsAnEmptyTypeAndLoadsAsNull) {
  EXPECT_EQ(ToJson(nullptr), "{\n    \"typename\": \"\"\n}");
  EXPECT_EQ(ToXml(nullptr), XmlDocument("\t<typename></typename>\n"));
  EXPECT_EQ(ToBinary(nullptr), Little + std::string(4, '\0'));
  mstch::map const data = boost::get<mstch::map>(ToTemplateData(nullptr));
  ASSERT_EQ(data.size(), 1u);
  EXPECT_EQ(boost::get<std::string>(data.at("typename")), "");
  EXPECT_EQ(FromJson(ToJson(nullptr)), nullptr);
  EXPECT_EQ(FromXml(ToXml(nullptr)), nullptr);
  EXPECT_EQ(FromBinary(ToBinary(nullptr)), nullptr);
}

TEST(PrimitiveForms, EveryKindAndExtremeValuesRoundTripInEveryForm) {
  std::vector<std::shared_ptr<Object const>> values = test::ExtremePrimitives();
  auto const nan = std::make_shared<Double>(std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(std::isnan(FromJson(ToJson(nan))->As<Double>().Get()));
  for (Written const& written : EveryKind()) {
    values.push_back(std::get<0>(written));
  }
  for (auto const& value : values) {
    SCOPED_TRACE(ToJson(value));
    for (auto const& loaded :
         {FromJson(ToJson(value)), FromXml(ToXml(value)), FromBinary(ToBinary(value))}) {
      ASSERT_TRUE(loaded);
      EXPECT_TRUE(loaded->EqualTo(*value));
      EXPECT_FALSE(loaded->GetOptions().Test(Option::deserializing));
    }
  }
}

// A string that goes through a form comes back as it was, or as the form
// documents (the JSON reader ends a string at its first NUL), or the save
// throws (XML 1.0 cannot hold most control characters, nor bytes that are not
// UTF-8). Blanks at either end survive XML through xml:space="preserve".
TEST(PrimitiveForms, AStringComesBackOrIsRefusedButNeverChangesSilently) {
  // A dictionary holding the text as its key and as its value.
  auto const keyed = [](std::string const& text) -> std::shared_ptr<Object const> {
    return std::make_shared<Dictionary<Object>>(
        Dictionary<Object>::Properties{{text, std::make_shared<String>(text)}});
  };
  std::vector<std::pair<std::string, bool>> texts;  // and whether XML holds it
  for (int byte = 0; byte <= 0x7F; byte = byte == 0x1F ? 0x7F : byte + 1) {
    texts.emplace_back(std::string("a") + static_cast<char>(byte) + "b",
                       byte == '\t' || byte == '\n' || byte == '\r' || byte == 0x7F);
  }
  // Blanks at either end; characters of two, three and four bytes.
  for (char const* kept : {" a", "a ", "\ta\n", " \r\n", "\xc3\xa9\xe2\x82\xac\xf0\x9d\x84\x9e"}) {
    texts.emplace_back(kept, true);
  }
  // Not UTF-8: a stray byte, a cut sequence, an overlong form, a surrogate;
  // and U+FFFE, which XML excludes.
  for (char const* bytes : {"\xff", "a\xc3", "\xc0\xaf", "\xed\xa0\x80", "\xef\xbf\xbe"}) {
    texts.emplace_back(bytes, false);
  }
  for (auto const& [text, xmlHolds] : texts) {
    SCOPED_TRACE(::testing::PrintToString(text));
    auto const value = keyed(text);
    EXPECT_TRUE(FromBinary(ToBinary(value))->EqualTo(*value));
    EXPECT_TRUE(FromJson(ToJson(value))->EqualTo(*keyed(text.substr(0, text.find('\0')))));
    if (xmlHolds) {
      EXPECT_TRUE(FromXml(ToXml(value))->EqualTo(*value));
    } else {
      EXPECT_THROW(ToXml(value), std::runtime_error);
      EXPECT_THROW(ToXml(std::make_shared<String>(text)), std::runtime_error);
    }
  }
  EXPECT_EQ(MessageOf<std::runtime_error>(
                [] { ToXml(std::make_shared<String>(std::string("a\0b", 3))); }),
            "Cannot save the string in the XML form: XML 1.0 cannot hold the control character "
            "0x00 at byte offset 1");
  EXPECT_EQ(MessageOf<std::runtime_error>([&] { ToXml(keyed("ok\xff")); }),
            "Cannot save the dictionary key in the XML form: the byte 0xFF does not start a valid "
            "UTF-8 sequence at byte offset 2");
}

TEST(TemplateDataArchive, AppendsToListsAndRefusesToTurnOrCloseTheRoot) {
  ryx::templating::serialize::archive::output::Data archive;
  EXPECT_THROW(archive.MakeArray(2), std::logic_error);
  archive.SetNextName("items");
  archive.StartNode();
  archive.MakeArray(2);
  archive.SaveValue(1);
  archive.SaveValue(std::string("two"));
  archive.FinishNode();
  EXPECT_EQ(mstch::render("{{#items}}<{{.}}>{{/items}}", archive.GetRoot()), "<1><two>");
  EXPECT_THROW(archive.FinishNode(), std::logic_error);
}

}  // namespace
