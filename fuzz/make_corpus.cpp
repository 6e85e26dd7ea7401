// Writes the seed corpora of the fuzzers into <directory>: documents the
// library saved, one file per value and form, into {json,xml,binary}/ for
// the loaders, and into direct_read/ in both JSON layouts and the binary form
// for the differential reader; plain JSON texts, some behind a schema's
// line, into plain_json/; and a few recipes into direct_write/.
#include <ryx/object.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace ryx::object;

void Write(std::filesystem::path const& file, std::string const& bytes) {
  std::ofstream out(file, std::ios::binary);
  out << bytes;
}

// Every kind in containers under typed and per-position schemas, with a
// null child.
std::shared_ptr<Object> Containers() {
  Required const int32(Object::TypeIdOf<Int32>());
  auto const typed = std::make_shared<Array<Object>>(
      Required(Object::TypeIdOf<Array<Object>>(), {int32}),
      Array<Object>::Objects{std::make_shared<Array<Object>>(int32, Array<Object>::Objects{})});
  auto const record = std::make_shared<Dictionary<Object>>(Dictionary<Object>::Properties{
      {"id", std::make_shared<Int32>(7)},
      {"name", std::make_shared<String>("abc")},
      {"tags", std::make_shared<Array<Object>>(
                   Array<Object>::Objects{std::make_shared<String>("x"), typed})}});
  auto const all = std::make_shared<Array<Object>>(Array<Object>::Objects{
      record, std::make_shared<Enum<Object>>(enumeration::Dummy{65535}),
      std::make_shared<Pointer<Object, void>>(), std::make_shared<Pointer<Object, void const>>(),
      std::make_shared<Double>(std::numeric_limits<double>::quiet_NaN()),
      std::make_shared<Int32>(0)});
  *all->GetSlot(5) = nullptr;
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_corpus <directory>\n";
    return 2;
  }
  std::vector<std::shared_ptr<Object const>> const values = {
      nullptr,
      std::make_shared<Bool>(true),
      std::make_shared<Int8>(-128),
      std::make_shared<Int16>(-300),
      std::make_shared<Int32>(7),
      std::make_shared<Int64>(std::numeric_limits<long>::min()),
      std::make_shared<UInt8>(255),
      std::make_shared<UInt16>(65535),
      std::make_shared<UInt32>(4294967295u),
      std::make_shared<UInt64>(std::numeric_limits<unsigned long>::max()),
      std::make_shared<Float>(0.1f),
      std::make_shared<Double>(-1e-300),
      std::make_shared<String>("name"),
      std::make_shared<String>(std::string(" a\0b<&>\"\n", 10)),
      Containers(),
  };
  std::filesystem::path const root(argv[1]);
  for (char const* form : {"json", "xml", "binary", "direct_read", "direct_write", "plain_json"}) {
    std::filesystem::create_directories(root / form);
  }
  for (std::size_t i = 0; i != values.size(); ++i) {
    std::string const name = "value" + std::to_string(i);
    Write(root / "json" / name, ToJson(values[i]));
    try {
      Write(root / "xml" / name, ToXml(values[i]));
    } catch (std::runtime_error const&) {
      // Text that XML 1.0 cannot hold: the form refuses it.
    }
    Write(root / "binary" / name, ToBinary(values[i]));
    Write(root / "direct_read" / (name + ".indented"), ToJson(values[i]));
    Write(root / "direct_read" / (name + ".compact"), ToJson(values[i], JsonLayout::Compact));
    Write(root / "direct_read" / (name + ".binary"), ToBinary(values[i]));
  }
  // Plain JSON: the values plain JSON holds, without a schema and under
  // schemas of every shape.
  std::pair<char const*, char const*> const plain[] = {
      {"", R"({"id": 7, "name": "abc", "tags": ["x", [[]]], "score": -1.5e-3, "on": true})"},
      {"", R"([null, 18446744073709551615, -9223372036854775808, 1e308, "\u0000\ud83d\ude00"])"},
      {"Array<Int8>\n", "[-128, 127, 0]"},
      {"Dictionary<Array<any<UInt16,String>>>\n", R"({"a": [[1, "x"]], "b": [[65535, ""]]})"},
      {"any<Bool,Float,Double,String>\n", R"([true, 0.1, 5e-324, "\u00e9"])"},
      {"Array<Dictionary<UInt64>>\n", R"([{"k": 1}, {}])"},
      {"Dictionary<any<Int32,Int64>>\n", R"({"only": [1, 2]})"},
      {"Array<Array<Int16>,Dictionary,UInt32>\n", R"([[1], {"x": true}, 4294967295])"},
  };
  for (std::size_t i = 0; i != std::size(plain); ++i) {
    Write(root / "plain_json" / ("value" + std::to_string(i)),
          std::string(plain[i].first) + plain[i].second);
  }
  // Recipes: a byte per choice, so these pick a dictionary, an array, and
  // every kind in turn.
  std::string every;
  for (int choice = 0; choice != 64; ++choice) {
    every += static_cast<char>(choice % 20);
    every += static_cast<char>(choice * 37);
  }
  Write(root / "direct_write" / "every_kind", std::string("\x12\x05", 2) + every);
  Write(root / "direct_write" / "nested", std::string(48, '\x10'));
  return 0;
}
