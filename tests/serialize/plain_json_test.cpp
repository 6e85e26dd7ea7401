// Plain JSON: what each kind writes, what the JSON decides without a schema,
// what a schema makes of a document, and where failures are reported.
#include "serialize/box.hpp"
#include "support.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;
using Objects = Array<Object>::Objects;
using Properties = Dictionary<Object>::Properties;

Required Schema(char const* text) { return ParseRequired(text); }

std::string Compact(std::shared_ptr<Object const> const& value) {
  return ToPlainJson(value, JsonLayout::Compact);
}

// What FromPlainJson makes of `text`: the value's type and its compact text,
// or the failure's message.
std::string Read(std::string const& text, Required const& schema = Required()) {
  try {
    std::shared_ptr<Object const> const value = FromPlainJson(text, schema);
    if (value == nullptr) {
      return "null value";
    }
    EXPECT_NO_THROW(schema.Check(*value)) << text;
    return std::string(Object::TypeName(value->GetType())) + " " + Compact(value);
  } catch (PlainJsonError const& error) {
    return error.what();
  }
}

TEST(PlainJson, WritesEachKindAsTheJsonItIs) {
  std::pair<std::shared_ptr<Object const>, std::string> const cases[] = {
      {nullptr, "null"},
      {std::make_shared<Bool>(true), "true"},
      {std::make_shared<Int8>(-128), "-128"},
      {std::make_shared<UInt8>(255), "255"},
      {std::make_shared<Int64>(std::numeric_limits<long>::min()), "-9223372036854775808"},
      {std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max()),
       "18446744073709551615"},
      // Shortest texts that read back the same; ".0" keeps a whole number a
      // number of its kind.
      {std::make_shared<Float>(0.1f), "0.1"},
      {std::make_shared<Double>(0.1), "0.1"},
      {std::make_shared<Double>(100), "100.0"},
      {std::make_shared<Double>(-0.0), "-0.0"},
      {std::make_shared<Double>(1e16), "1e+16"},
      {std::make_shared<Double>(12345678901234568.0), "12345678901234568.0"},
      {std::make_shared<Double>(5e-324), "5e-324"},
      {std::make_shared<String>(std::string("a\0\"\\\n\x1f\xc3\xa9/", 9)),
       R"("a\u0000\"\\\n\u001F)" "\xc3\xa9/\""},
      {std::make_shared<Enum<Object>>(enumeration::Dummy{7}), "7"},
      {std::make_shared<Array<Object>>(Objects{std::make_shared<Int32>(1), test::Example()}),
       R"([1,[7,{"name":"abc"}]])"},
  };
  for (auto const& [value, text] : cases) {
    EXPECT_EQ(Compact(value), text);
  }
  EXPECT_EQ(ToPlainJson(std::make_shared<Array<Object>>(Objects{std::make_shared<Int32>(1)})),
            "[\n    1\n]");
  EXPECT_EQ(ToPlainJson(std::make_shared<Dictionary<Object>>()), "{}");
}

TEST(PlainJson, WritingRefusesWhatPlainJsonCannotHoldAndNamesWhere) {
  test::RegisterBox();
  auto const inside = [](std::shared_ptr<Object> value) -> std::shared_ptr<Object const> {
    auto const array = std::make_shared<Array<Object>>(Objects{std::make_shared<Int32>(0)});
    array->Append(std::make_shared<Dictionary<Object>>(Properties{{"a/b~", std::move(value)}}));
    return array;
  };
  double const nan = std::numeric_limits<double>::quiet_NaN();
  double const inf = std::numeric_limits<double>::infinity();
  std::pair<std::shared_ptr<Object const>, std::string> const cases[] = {
      {inside(std::make_shared<Double>(nan)), "at /1/a~1b~0: NaN has no plain JSON form"},
      {inside(std::make_shared<Float>(-inf)), "at /1/a~1b~0: -infinity has no plain JSON form"},
      {std::make_shared<Double>(inf), "infinity has no plain JSON form"},
      {inside(std::make_shared<String>("ok\xc3")),
       "at /1/a~1b~0: the string is not valid UTF-8: the byte 0xC3 at offset 2 does not start "
       "a valid UTF-8 sequence"},
      // Encoded surrogates are not UTF-8.
      {std::make_shared<String>("\xed\xa0\x80"),
       "the string is not valid UTF-8: the byte 0xED at offset 0 does not start a valid UTF-8 "
       "sequence"},
      {std::make_shared<Dictionary<Object>>(Properties{{"\xff", std::make_shared<Bool>(true)}}),
       "the member name is not valid UTF-8: the byte 0xFF at offset 0 does not start a valid "
       "UTF-8 sequence"},
      {inside(test::EveryKindInContainers()->Get(2)),
       "at /1/a~1b~0: ryx.object.Pointer has no plain JSON form: what it points to is not a "
       "value"},
      {test::MakeBoxes(1),
       "test.serialize.Box has no plain JSON form (no PlainFunctions were registered)"},
  };
  for (auto const& [value, message] : cases) {
    EXPECT_EQ(MessageOf<PlainJsonError>([&] { ToPlainJson(value); }), message);
  }
  try {
    ToPlainJson(inside(std::make_shared<Double>(nan)));
  } catch (PlainJsonError const& error) {
    EXPECT_EQ(error.GetReason(), "NaN has no plain JSON form");
    ASSERT_NE(FindLocation(error), nullptr);
    EXPECT_EQ(FindLocation(error)->path, "/1/a~1b~0");
    EXPECT_FALSE(FindLocation(error)->hasOffset);
  }
}

// Canonical texts are what the writer writes: they come back byte for byte.
// (Objects of one member, since a dictionary's order is its own.)
TEST(PlainJson, CanonicalTextsComeBackUnchanged) {
  for (char const* text : {
           "null", "true", "0", "-1", "9223372036854775807", "-9223372036854775808",
           "9223372036854775808", "18446744073709551615", "1.5", "-0.0", "1e+300", "2.5e-08",
           "5e-324", "1.7976931348623157e+308", "18446744073709551616.0", R"("")",
           R"("\"\\\b\f\n\r\t\u0000\u001F é 😀 /")", "[]", "{}", "[[[]],{},null]",
           R"({"a":[1,{"":null}]})", R"({"\u0000":{"k":-2}})",
       }) {
    EXPECT_EQ(Compact(FromPlainJson(text)), text);
  }
}

TEST(PlainJson, WithoutASchemaTheJsonDecidesTheKinds) {
  std::pair<char const*, std::string> const cases[] = {
      {"true", "ryx.object.Bool true"},
      {"-0", "ryx.object.Int64 0"},
      {"9223372036854775807", "ryx.object.Int64 9223372036854775807"},
      {"9223372036854775808", "ryx.object.UInt64 9223372036854775808"},
      {"-9223372036854775809", "ryx.object.Double -9223372036854775808.0"},
      {"18446744073709551616", "ryx.object.Double 18446744073709551616.0"},
      {"1.0", "ryx.object.Double 1.0"},
      {"1E2", "ryx.object.Double 100.0"},
      {"1e-400", "ryx.object.Double 0.0"},
      {"-1e-400", "ryx.object.Double -0.0"},
      {"0.1e1", "ryx.object.Double 1.0"},
      {" [ 1 , \"a\" ] ", R"(ryx.object.Array [1,"a"])"},
      // The first of repeated names stays.
      {R"({"k": 1, "k": 2})", R"(ryx.object.Dictionary {"k":1})"},
      {R"("\ud83d\ude00\u00e9")", "ryx.object.String \"😀é\""},
  };
  for (auto const& [text, outcome] : cases) {
    EXPECT_EQ(Read(text), outcome) << text;
  }
  EXPECT_EQ(FromPlainJson("null"), nullptr);
  auto const array = FromPlainJson("[{}, []]");
  EXPECT_EQ(array->GetRequired(), Required());
  EXPECT_EQ(array->As<Array<Object>>().Get(0)->GetRequired(), Required());
}

// Each kind takes the integers in its range, and refuses the next ones out
// and any number with a fraction or an exponent.
TEST(PlainJson, IntegersAreRangeCheckedIntoTheKindTheSchemaNames) {
  struct Edge {
    char const* kind;
    char const* min;
    char const* max;
    char const* below;
    char const* above;
  };
  Edge const edges[] = {
      {"Int8", "-128", "127", "-129", "128"},
      {"Int16", "-32768", "32767", "-32769", "32768"},
      {"Int32", "-2147483648", "2147483647", "-2147483649", "2147483648"},
      {"Int64", "-9223372036854775808", "9223372036854775807", "-9223372036854775809",
       "9223372036854775808"},
      {"UInt8", "0", "255", "-1", "256"},
      {"UInt16", "0", "65535", "-1", "65536"},
      {"UInt32", "0", "4294967295", "-1", "4294967296"},
      {"UInt64", "-0", "18446744073709551615", "-1", "18446744073709551616"},
  };
  for (Edge const& edge : edges) {
    std::string const name = std::string("ryx.object.") + edge.kind;
    Required const schema = Schema(edge.kind);
    EXPECT_EQ(Read(edge.min, schema), name + " " + (edge.min[0] == '-' && edge.min[1] == '0'
                                                         ? std::string("0")
                                                         : std::string(edge.min)));
    EXPECT_EQ(Read(edge.max, schema), name + " " + edge.max);
    for (char const* out : {edge.below, edge.above}) {
      EXPECT_EQ(Read(out, schema).find("line 1, column 1: the integer " + std::string(out) +
                                       " is out of the range of " + name),
                0u)
          << Read(out, schema);
    }
    EXPECT_EQ(Read("1.0", schema), "line 1, column 1: expected " + name +
                                       ", found the number 1.0, which is not an integer");
    EXPECT_NE(Read("1e2", schema).find("which is not an integer"), std::string::npos);
  }
  EXPECT_EQ(Read("300", Schema("Int8")),
            "line 1, column 1: the integer 300 is out of the range of ryx.object.Int8 (-128 to 127)");
  // Integers fill the floating kinds; beyond their range is refused.
  EXPECT_EQ(Read("16777217", Schema("Float")), "ryx.object.Float 16777216.0");
  EXPECT_EQ(Read("0.1", Schema("Float")), "ryx.object.Float 0.1");
  EXPECT_EQ(Read("3.5e38", Schema("Float")),
            "line 1, column 1: the number 3.5e38 is out of the range of ryx.object.Float");
  EXPECT_EQ(Read("5", Schema("Double")), "ryx.object.Double 5.0");
  EXPECT_EQ(Read("1e309", Schema("Double")).substr(0, 18), "line 1, column 1: ");
}

TEST(PlainJson, ASchemaGivesEachContainerItsElementSchema) {
  struct Case {
    char const* schema;
    char const* text;
    std::string outcome;
    char const* elementSchema;  // of the value read, when it is read
  };
  Case const cases[] = {
      {"Array", "[1, [2]]", "ryx.object.Array [1,[2]]", "any"},
      {"Array<Int32>", "[1, 2]", "ryx.object.Array [1,2]", "ryx.object.Int32"},
      {"Array<Int32>", "[]", "ryx.object.Array []", "ryx.object.Int32"},
      {"Array<Array<String>>", R"([["a"], []])", R"(ryx.object.Array [["a"],[]])",
       "ryx.object.Array<ryx.object.String>"},
      {"Array<Int8,String>", R"([1, "a"])", R"(ryx.object.Array [1,"a"])",
       "any<ryx.object.Int8,ryx.object.String>"},
      {"any<Int8,String>", R"([1, "a"])", R"(ryx.object.Array [1,"a"])",
       "any<ryx.object.Int8,ryx.object.String>"},
      // A single child without a type of its own is one position.
      {"Array<any<Bool,Bool>>", "[[true, false]]", "ryx.object.Array [[true,false]]",
       "any<any<ryx.object.Bool,ryx.object.Bool>>"},
      {"Dictionary<UInt8>", R"({"a": 1})", R"(ryx.object.Dictionary {"a":1})",
       "ryx.object.UInt8"},
      {"Dictionary<any<Int8,Int8>>", R"({"a": [1, 2]})", R"(ryx.object.Dictionary {"a":[1,2]})",
       "any<any<ryx.object.Int8,ryx.object.Int8>>"},
      {"Dictionary<Dictionary>", R"({"a": {"b": "c"}})",
       R"(ryx.object.Dictionary {"a":{"b":"c"}})", "ryx.object.Dictionary"},
      {"Array<Int32>", "[1, true]", "line 1, column 5, at /1: expected ryx.object.Int32, found true",
       nullptr},
      {"Array<Int8,String>", "[1]",
       "line 1, column 1: the schema gives this array exactly 2 elements, and it has fewer",
       nullptr},
      {"Array<Int8,String>", "[1, \"a\",\n 3]",
       "line 2, column 2, at /2: the schema gives this array exactly 2 elements, and it has more",
       nullptr},
      {"Dictionary<any<Int8,Int8>>", R"({"a": [1]})",
       "line 1, column 7, at /a: the schema gives this array exactly 2 elements, and it has fewer",
       nullptr},
      {"Dictionary<any<Int8,Int8>>", R"({"a": [1, 2], "b": [3, 4]})",
       "line 1, column 20, at /b: the schema gives this object exactly 1 member, and it has more",
       nullptr},
      {"Array<String>", R"(["a", {"b": 1}])",
       "line 1, column 7, at /1: expected ryx.object.String, found an object", nullptr},
      {"Dictionary", "[]", "line 1, column 1: expected an object, found an array", nullptr},
      {"Array", "[1, null]",
       "line 1, column 5, at /1: expected a value, found null: with a schema, every value must "
       "be there (no container holds a null element)",
       nullptr},
      {"String", "\"\\uDC00\"",
       "line 1, column 1: the string is not valid UTF-8: the byte 0xED at offset 0 does not "
       "start a valid UTF-8 sequence",
       nullptr},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(std::string(c.schema) + " " + c.text);
    EXPECT_EQ(Read(c.text, Schema(c.schema)), c.outcome);
    if (c.elementSchema != nullptr) {
      EXPECT_EQ(FormatRequired(FromPlainJson(c.text, Schema(c.schema))->GetRequired()),
                c.elementSchema);
    }
  }
}

TEST(PlainJson, RefusesSchemasThatNoJsonCanConformTo) {
  test::RegisterBox();
  for (char const* schema : {"Enum", "Pointer", "Array<ConstPointer>", "Int32<Int32>",
                             "Dictionary<Int8,String>", "test.serialize.Box"}) {
    EXPECT_THROW(FromPlainJson("1", Schema(schema)), std::invalid_argument) << schema;
  }
  EXPECT_EQ(MessageOf<std::invalid_argument>([] { FromPlainJson("[]", Schema("Array<Enum>")); }),
            "No plain JSON can conform to the schema: ryx.object.Enum cannot be read from plain "
            "JSON, which does not say its type");
  EXPECT_THROW(FromPlainJson("1", Required(ryx::hash::MurmurThree32(0x1234))),
               std::invalid_argument);
}

// Syntax errors carry the parser's message, placed by line, column (in
// characters) and the path of the value being read.
TEST(PlainJson, RefusesWhatIsNotStrictJsonAndSaysWhere) {
  std::pair<std::string, std::string> const cases[] = {
      {"", "line 1, column 1: The document is empty."},
      {"[1, 2,]", "line 1, column 7, at /2: Invalid value."},
      {"{\"a\": 1,}", "line 1, column 9: Missing a name for object member."},
      {"// note\n1", "line 1, column 1: Invalid value."},
      {"NaN", "line 1, column 1: Invalid value."},
      {"[Infinity]", "line 1, column 2, at /0: Invalid value."},
      {"01", "line 1, column 2: The document root must not be followed by other values."},
      {"{\"é\": [\n  1,\n  x]}", "line 3, column 3, at /é/1: Invalid value."},
      {"\"a\tb\"", "line 1, column 3: Invalid escape character in string."},
      {std::string("[1]\0[2]", 7),
       "line 1, column 4: The document root must not be followed by other values."},
      {"\"\\uD800\"", "line 1, column 2: The surrogate pair in string is invalid."},
      {"\xef\xbb\xbf{}", "line 1, column 1: Invalid value."},
      // Not UTF-8 past the first eight bytes, which are checked a word at a time.
      {"[\"abcdefgh\xffijklmnop\"]",
       "line 1, column 2, at /0: the string is not valid UTF-8: the byte 0xFF at offset 8 does not "
       "start a valid UTF-8 sequence"},
      // A member name is placed at its quote, on the path of the object holding it.
      {"{\"a\": {\"\xff\": 1}}",
       "line 1, column 8, at /a: the member name is not valid UTF-8: the byte 0xFF at offset 0 "
       "does not start a valid UTF-8 sequence"},
  };
  for (auto const& [text, message] : cases) {
    EXPECT_EQ(Read(text), message) << text;
  }
  try {
    FromPlainJson("{\"é\": [\n  1,\n  x]}");
  } catch (PlainJsonError const& error) {
    Location const* const location = FindLocation(error);
    ASSERT_NE(location, nullptr);
    EXPECT_TRUE(location->hasOffset);
    EXPECT_EQ(location->offset, 16u);
    EXPECT_EQ(location->line, 3u);
    EXPECT_EQ(location->column, 3u);
    EXPECT_EQ(location->path, "/é/1");
    EXPECT_EQ(error.GetReason(), "Invalid value.");
  }
}

TEST(PlainJson, NestingBeyondTheLimitIsRefusedWithItsLocation) {
  std::size_t const limit = GetNestingLimit();
  // Writing: the innermost number is a level of its own.
  auto const nest = [](std::size_t arrays) {
    std::shared_ptr<Object> value = std::make_shared<Int32>(1);
    for (std::size_t level = 0; level != arrays; ++level) {
      value = std::make_shared<Array<Object>>(Objects{std::move(value)});
    }
    return value;
  };
  EXPECT_NO_THROW(ToPlainJson(nest(limit - 1)));
  EXPECT_THROW(ToPlainJson(nest(limit)), NestingLimitError);
  std::string const atLimit = std::string(limit - 1, '[') + "1" + std::string(limit - 1, ']');
  EXPECT_NO_THROW(FromPlainJson(atLimit));
  std::string const deeper(1000000, '[');
  try {
    FromPlainJson(deeper);
    ADD_FAILURE() << "no exception";
  } catch (NestingLimitError const& error) {
    EXPECT_EQ(std::string(error.what()), "Values are nested deeper than the nesting limit of " +
                                             std::to_string(limit) + " levels");
    ASSERT_NE(FindLocation(error), nullptr);
    EXPECT_EQ(FindLocation(error)->column, limit + 1);
  }
}

// A value of a kind plain JSON holds, and the schema it reads back under.
class RandomValues {
 public:
  explicit RandomValues(unsigned seed) : random(seed) {}

  std::pair<std::shared_ptr<Object>, Required> Next() {
    Required const schema = RandomSchema(3);
    return {Conforming(schema, 3), schema};
  }

 private:
  std::size_t Below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(random); }

  template <class T>
  T Bits() {
    std::uint64_t const bits = random();
    T value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }

  template <class T>
  T Finite() {
    for (;;) {
      T const value = Bits<T>();
      if (std::isfinite(value)) {
        return value;
      }
    }
  }

  // Valid UTF-8 of every width, control characters and NUL included.
  std::string Text() {
    std::string text;
    for (std::size_t n = Below(6); n != 0; --n) {
      std::uint32_t c = 0;
      switch (Below(4)) {
        case 0:
          c = static_cast<std::uint32_t>(Below(0x80));
          break;
        case 1:
          c = 0x80 + static_cast<std::uint32_t>(Below(0x800 - 0x80));
          break;
        case 2:
          c = 0xE000 + static_cast<std::uint32_t>(Below(0x10000 - 0xE000));
          break;
        default:
          c = 0x10000 + static_cast<std::uint32_t>(Below(0x110000 - 0x10000));
      }
      if (c < 0x80) {
        text += static_cast<char>(c);
      } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        text += static_cast<char>(0x80 | (c & 0x3F));
      } else if (c < 0x10000) {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
      } else {
        text += static_cast<char>(0xF0 | (c >> 18));
        text += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
      }
    }
    return text;
  }

  Required RandomSchema(int depth) {
    static char const* const primitives[] = {"Bool",   "Int8",   "Int16",  "Int32",
                                             "Int64",  "UInt8",  "UInt16", "UInt32",
                                             "UInt64", "Float",  "Double", "String"};
    std::size_t const pick = Below(depth > 0 ? 17 : 12);
    if (pick < 12) {
      return Schema(primitives[pick]);
    }
    auto const array = Object::TypeIdOf<Array<Object>>();
    auto const dictionary = Object::TypeIdOf<Dictionary<Object>>();
    switch (pick) {
      case 12:
        return Required(Below(2) == 0 ? array : dictionary);
      case 13:
        return Required(array, {RandomSchema(depth - 1)});
      case 14:
        return Required(dictionary, {RandomSchema(depth - 1)});
      case 15:
        return Required(array, {RandomSchema(depth - 1), RandomSchema(depth - 1)});
      default:
        return Required({RandomSchema(depth - 1), RandomSchema(depth - 1), RandomSchema(0)});
    }
  }

  // A value of `schema`, its containers under the element schemas the
  // schema gives them.
  std::shared_ptr<Object> Conforming(Required const& schema, int depth) {
    auto const type = schema.GetType();
    if (type == ryx::hash::MurmurThree32() && schema.GetChildTypes().empty()) {
      return Untyped(depth);
    }
    if (type == Object::TypeIdOf<Bool>()) return std::make_shared<Bool>(Below(2) == 0);
    if (type == Object::TypeIdOf<Int8>()) return std::make_shared<Int8>(Bits<signed char>());
    if (type == Object::TypeIdOf<Int16>()) return std::make_shared<Int16>(Bits<short>());
    if (type == Object::TypeIdOf<Int32>()) return std::make_shared<Int32>(Bits<int>());
    if (type == Object::TypeIdOf<Int64>()) return std::make_shared<Int64>(Bits<long>());
    if (type == Object::TypeIdOf<UInt8>()) return std::make_shared<UInt8>(Bits<unsigned char>());
    if (type == Object::TypeIdOf<UInt16>()) return std::make_shared<UInt16>(Bits<unsigned short>());
    if (type == Object::TypeIdOf<UInt32>()) return std::make_shared<UInt32>(Bits<unsigned>());
    if (type == Object::TypeIdOf<UInt64>()) return std::make_shared<UInt64>(Bits<unsigned long>());
    if (type == Object::TypeIdOf<Float>()) return std::make_shared<Float>(Finite<float>());
    if (type == Object::TypeIdOf<Double>()) return std::make_shared<Double>(Finite<double>());
    if (type == Object::TypeIdOf<String>()) return std::make_shared<String>(Text());
    std::vector<Required> const& children = schema.GetChildTypes();
    Required element;
    if (children.size() == 1 && children[0].GetType() != ryx::hash::MurmurThree32()) {
      element = children[0];
    } else if (!children.empty()) {
      element = Required(children.begin(), children.end());
    }
    bool const perPosition = element.GetType() == ryx::hash::MurmurThree32() && !children.empty();
    if (type == Object::TypeIdOf<Dictionary<Object>>()) {
      Properties properties;
      if (perPosition) {
        properties.emplace(Text(), Conforming(children[0], depth - 1));
      }
      for (std::size_t n = perPosition ? 0 : Below(4); n != 0; --n) {
        properties.emplace(Text(), Conforming(element, depth - 1));
      }
      return std::make_shared<Dictionary<Object>>(Object::TypeIdOf<Dictionary<Object>>(), element,
                                                  std::move(properties));
    }
    Objects objects;
    if (perPosition) {
      for (Required const& child : children) {
        objects.push_back(Conforming(child, depth - 1));
      }
    } else {
      for (std::size_t n = Below(4); n != 0; --n) {
        objects.push_back(Conforming(element, depth - 1));
      }
    }
    return std::make_shared<Array<Object>>(element, std::move(objects));
  }

  // What the JSON decides: the kinds it reads back without a schema.
  std::shared_ptr<Object> Untyped(int depth) {
    switch (Below(depth > 0 ? 7 : 5)) {
      case 0:
        return std::make_shared<Int64>(Bits<long>());
      case 1:
        return std::make_shared<UInt64>(Bits<unsigned long>() | (1ul << 63));
      case 2:
        return std::make_shared<Double>(Finite<double>());
      case 3:
        return std::make_shared<Bool>(Below(2) == 0);
      case 4:
        return std::make_shared<String>(Text());
      case 5: {
        Objects objects;
        for (std::size_t n = Below(4); n != 0; --n) {
          objects.push_back(Untyped(depth - 1));
        }
        return std::make_shared<Array<Object>>(std::move(objects));
      }
      default: {
        Properties properties;
        for (std::size_t n = Below(4); n != 0; --n) {
          properties.emplace(Text(), Untyped(depth - 1));
        }
        return std::make_shared<Dictionary<Object>>(std::move(properties));
      }
    }
  }

  std::mt19937_64 random;
};

TEST(PlainJson, ValuesComeBackEqualThroughTheirSchema) {
  RandomValues values(2611);
  for (int n = 0; n != 400; ++n) {
    auto const [value, schema] = values.Next();
    ASSERT_NO_THROW(schema.Check(*value)) << FormatRequired(schema);
    for (JsonLayout const layout : {JsonLayout::Compact, JsonLayout::Indented}) {
      std::string const text = ToPlainJson(value, layout);
      std::shared_ptr<Object> const read = FromPlainJson(text, schema);
      ASSERT_TRUE(read && read->EqualTo(*value)) << FormatRequired(schema) << "\n" << text;
    }
  }
}

// A type of the user's own: a pair of integers, plain as {"first":..,"second":..}.
constexpr char const* PairName = "test.plain.Pair";

class Pair : public Object {
 public:
  Pair() : Object(ryx::hash::MurmurThree32::MakeData(PairName)) {}
  void Set(Object const& other) override {
    first = static_cast<Pair const&>(other).first;
    second = static_cast<Pair const&>(other).second;
  }
  bool EqualTo(Object const& other) const override {
    auto const& pair = static_cast<Pair const&>(other);
    return other.GetType() == GetType() && pair.first == first && pair.second == second;
  }
  long first = 0;
  long second = 0;
};

void RegisterPair() {
  static bool const registered = [] {
    PlainFunctions plain;
    plain.save = [](Object const& value) -> std::shared_ptr<Object const> {
      auto const& pair = static_cast<Pair const&>(value);
      return std::make_shared<Dictionary<Object>>(
          Properties{{"first", std::make_shared<Int64>(pair.first)},
                     {"second", std::make_shared<Int64>(pair.second)}});
    };
    plain.load = [](Object& value, Object const& plain) {
      auto& pair = static_cast<Pair&>(value);
      auto const& members = plain.As<Dictionary<Object>>();
      if (members.Size() != 2 || !members.Contains("first") || !members.Contains("second")) {
        throw std::invalid_argument("expected the members first and second");
      }
      pair.first = members.Get("first")->As<Int64>().Get();
      pair.second = members.Get("second")->As<Int64>().Get();
    };
    registry::Get().Register(registry::Info(ryx::hash::MurmurThree32::MakeData(PairName),
                                            PairName, [] { return std::make_shared<Pair>(); },
                                            {}, {}, std::move(plain)));
    return true;
  }();
  static_cast<void>(registered);
}

TEST(PlainJson, ATypeOfTheUsersOwnReadsAndWritesThroughItsPlainFunctions) {
  RegisterPair();
  auto pair = std::make_shared<Pair>();
  pair->first = -3;
  pair->second = 4;
  auto const array = std::make_shared<Array<Object>>(Schema("test.plain.Pair"), Objects{pair, pair});
  std::string const text = Compact(array);
  EXPECT_TRUE(text == R"([{"first":-3,"second":4},{"first":-3,"second":4}])" ||
              text == R"([{"second":4,"first":-3},{"second":4,"first":-3}])")
      << text;
  std::shared_ptr<Object> const read = FromPlainJson(text, Schema("Array<test.plain.Pair>"));
  EXPECT_TRUE(read->EqualTo(*array));
  EXPECT_EQ(Read(R"([{"first": 1, "second": 2}, {"first": 1}])", Schema("Array<test.plain.Pair>")),
            "line 1, column 29, at /1: test.plain.Pair: expected the members first and second");
  EXPECT_EQ(Read("[null]", Schema("Array<test.plain.Pair>")),
            "line 1, column 2, at /0: expected test.plain.Pair, found null: with a schema, every "
            "value must be there (no container holds a null element)");
}

}  // namespace
