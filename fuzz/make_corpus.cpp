// Writes the seed corpora of the fuzzers: documents the library saved, one
// file per value and form, into <directory>/{json,xml,binary}/.
#include <ryx/object.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;

void Write(std::filesystem::path const& file, std::string const& bytes) {
  std::ofstream out(file, std::ios::binary);
  out << bytes;
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
  };
  std::filesystem::path const root(argv[1]);
  for (char const* form : {"json", "xml", "binary"}) {
    std::filesystem::create_directories(root / form);
  }
  for (std::size_t i = 0; i != values.size(); ++i) {
    std::string const name = "value" + std::to_string(i);
    Write(root / "json" / name, ToJson(values[i]));
    Write(root / "xml" / name, ToXml(values[i]));
    Write(root / "binary" / name, ToBinary(values[i]));
  }
  return 0;
}
