// Builds a value of every kind from the fuzzer's bytes and checks that the
// direct writers write what the archive path writes (both JSON layouts and
// the binary form), and that the direct readers read those texts back as the
// archive path does.
//
// The bytes are a recipe for a binary stream that the archive path loads:
// that gives values no public constructor would (schemas that their elements
// do not fit, null children), with numbers of every bit pattern (NaN,
// infinities, subnormals, extremes) and strings of every byte.
#include "same_outcome.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

using namespace ryx::object;

class Recipe {
 public:
  Recipe(std::uint8_t const* data, std::size_t size) : at(data), end(data + size) {}

  std::uint8_t Byte() { return at != end ? *at++ : 0; }

  // `count` bytes of the recipe, zeros once it is used up.
  void Copy(std::string& out, std::size_t count) {
    for (std::size_t i = 0; i != count; ++i) {
      out += static_cast<char>(Byte());
    }
  }

 private:
  std::uint8_t const* at;
  std::uint8_t const* const end;
};

template <class T>
void Append(std::string& out, T value) {
  char bytes[sizeof(T)];
  std::memcpy(bytes, &value, sizeof(T));
  out.append(bytes, sizeof(T));
}

void AppendId(std::string& out, ryx::hash::MurmurThree32 id) { Append(out, id.GetValue()); }

constexpr int MaxDepth = 6;

void Text(Recipe& recipe, std::string& out) {
  std::size_t const length = recipe.Byte() % 24;
  Append(out, std::uint64_t(length));
  recipe.Copy(out, length);
}

void Schema(Recipe& recipe, std::string& out, int depth) {
  std::uint8_t const choice = recipe.Byte();
  switch (choice % 4) {
    case 0:
      Append(out, std::uint32_t(0));
      break;
    case 1:
      AppendId(out, Object::TypeIdOf<Int32>());
      break;
    case 2:
      AppendId(out, Object::TypeIdOf<Array<Object>>());
      break;
    default:
      recipe.Copy(out, 4);
      break;
  }
  std::size_t const children = depth < MaxDepth ? (choice >> 2) % 3 : 0;
  Append(out, std::uint64_t(children));
  for (std::size_t i = 0; i != children; ++i) {
    Schema(recipe, out, depth + 1);
  }
}

void Value(Recipe& recipe, std::string& out, int depth) {
  std::uint8_t const choice = recipe.Byte() % (depth < MaxDepth ? 20 : 16);
  switch (choice) {
    case 0:
      Append(out, std::uint32_t(0));  // null
      break;
    case 1:
      AppendId(out, Object::TypeIdOf<Bool>());
      out += static_cast<char>(recipe.Byte() & 1);
      break;
#define RYX_FUZZ_NUMBER(Case, Kind)            \
  case Case:                                   \
    AppendId(out, Object::TypeIdOf<Kind>());   \
    recipe.Copy(out, sizeof(Kind::ValueType)); \
    break;
      RYX_FUZZ_NUMBER(2, Int8)
      RYX_FUZZ_NUMBER(3, Int16)
      RYX_FUZZ_NUMBER(4, Int32)
      RYX_FUZZ_NUMBER(5, Int64)
      RYX_FUZZ_NUMBER(6, UInt8)
      RYX_FUZZ_NUMBER(7, UInt16)
      RYX_FUZZ_NUMBER(8, UInt32)
      RYX_FUZZ_NUMBER(9, UInt64)
      RYX_FUZZ_NUMBER(10, Float)
      RYX_FUZZ_NUMBER(11, Double)
#undef RYX_FUZZ_NUMBER
    case 12:
      AppendId(out, Object::TypeIdOf<String>());
      Text(recipe, out);
      break;
    case 13:
      AppendId(out, Object::TypeIdOf<Enum<Object>>());
      recipe.Copy(out, 12);
      break;
    case 14:
      AppendId(out, Object::TypeIdOf<Pointer<Object, void>>());
      recipe.Copy(out, 4);
      break;
    case 15:
      AppendId(out, Object::TypeIdOf<Pointer<Object, void const>>());
      recipe.Copy(out, 4);
      break;
    case 16:
    case 17: {
      AppendId(out, Object::TypeIdOf<Array<Object>>());
      Schema(recipe, out, 0);
      std::size_t const count = recipe.Byte() % 6;
      Append(out, std::uint64_t(count));
      for (std::size_t i = 0; i != count; ++i) {
        Value(recipe, out, depth + 1);
      }
      break;
    }
    default: {
      AppendId(out, Object::TypeIdOf<Dictionary<Object>>());
      std::size_t const count = recipe.Byte() % 6;
      Append(out, std::uint64_t(count));
      for (std::size_t i = 0; i != count; ++i) {
        Text(recipe, out);
        Value(recipe, out, depth + 1);
      }
      Schema(recipe, out, 0);
      break;
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  Recipe recipe(data, size);
  std::string stream(1, '\x01');
  Value(recipe, stream, 0);
  std::shared_ptr<Object const> const value = FromBinaryThroughArchive(stream);

  std::string const indented = ToJsonThroughArchive(value);
  std::string const compact = ToJsonThroughArchive(value, JsonLayout::Compact);
  std::string const bytes = ToBinaryThroughArchive(value);
  fuzz::ExpectSameText("ToJson", ToJson(value), indented);
  fuzz::ExpectSameText("ToJson compact", ToJson(value, JsonLayout::Compact), compact);
  fuzz::ExpectSameText("ToBinary", ToBinary(value), bytes);
  for (std::string const& text : {indented, compact}) {
    fuzz::ExpectSameOutcome("FromJson", FromJson, FromJsonThroughArchive, text);
  }
  fuzz::ExpectSameOutcome("FromBinary", FromBinary, FromBinaryThroughArchive, bytes);
  return 0;
}
