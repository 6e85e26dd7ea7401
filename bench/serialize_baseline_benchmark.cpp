// The yardsticks of the serialization benchmarks, run in the same program as
// the library's forms. On the same records as plain C++ structs: cereal's own
// JSON and portable binary archives, nlohmann::json (dump and parse of plain
// JSON, and its CBOR) and rapidjson. On the library's own texts: rapidjson
// parsing them into a DOM and writing them back from it, the parser's and the
// writer's floors on those bytes. Each reports MB/s of its own text and the
// time per record.
#include "serialize_document.hpp"

// The library's JSON header configures rapidjson (its failed checks throw); it
// comes first so that every user of rapidjson in this program sees the same.
#include <ryx/serialize/archive/json.hpp>
#include <cereal/archives/portable_binary.hpp>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace ryx::bench {

namespace {

std::vector<Record> const& Records() {
  static std::vector<Record> const records = MakeRecords();
  return records;
}

template <class OutputArchive>
std::string CerealSave(std::vector<Record> const& records) {
  std::ostringstream stream;
  {
    OutputArchive archive(stream);
    archive(cereal::make_nvp("records", records));
  }
  return stream.str();
}

template <class InputArchive>
std::vector<Record> CerealLoad(std::string const& text) {
  std::istringstream stream(text);
  InputArchive archive(stream);
  std::vector<Record> records;
  archive(cereal::make_nvp("records", records));
  return records;
}

// Runs `make` (which returns the bytes written, in a std::string or a
// std::vector) once untimed, then timed.
template <class Make>
void Writing(benchmark::State& state, Make make) {
  std::size_t const bytes = make().size();
  for (auto _ : state) {
    auto const text = make();
    benchmark::DoNotOptimize(text.data());
  }
  Report(state, bytes);
}

// Runs `read` over `text` once untimed, then timed.
template <class Read>
void Reading(benchmark::State& state, std::string const& text, Read read) {
  read(text);
  for (auto _ : state) {
    read(text);
  }
  Report(state, text.size());
}

void CerealJsonSave(benchmark::State& state) {
  Writing(state, [] { return CerealSave<cereal::JSONOutputArchive>(Records()); });
}
void CerealJsonLoad(benchmark::State& state) {
  Reading(state, CerealSave<cereal::JSONOutputArchive>(Records()), [](std::string const& text) {
    benchmark::DoNotOptimize(CerealLoad<cereal::JSONInputArchive>(text).size());
  });
}
void CerealBinarySave(benchmark::State& state) {
  Writing(state, [] { return CerealSave<cereal::PortableBinaryOutputArchive>(Records()); });
}
void CerealBinaryLoad(benchmark::State& state) {
  Reading(state, CerealSave<cereal::PortableBinaryOutputArchive>(Records()),
          [](std::string const& text) {
            benchmark::DoNotOptimize(CerealLoad<cereal::PortableBinaryInputArchive>(text).size());
          });
}
BENCHMARK(CerealJsonSave)->Name("Cereal/JsonSave")->Unit(benchmark::kMillisecond);
BENCHMARK(CerealJsonLoad)->Name("Cereal/JsonLoad")->Unit(benchmark::kMillisecond);
BENCHMARK(CerealBinarySave)->Name("Cereal/BinarySave")->Unit(benchmark::kMillisecond);
BENCHMARK(CerealBinaryLoad)->Name("Cereal/BinaryLoad")->Unit(benchmark::kMillisecond);

// The records as plain JSON, with the same members.
nlohmann::json const& NlohmannDocument() {
  static nlohmann::json const document = [] {
    nlohmann::json array = nlohmann::json::array();
    for (Record const& record : Records()) {
      array.push_back({{"id", record.id},
                       {"name", record.name},
                       {"score", record.score},
                       {"flag", record.flag},
                       {"tags", record.tags}});
    }
    return array;
  }();
  return document;
}

}  // namespace

std::string const& PlainText() {
  static std::string const text = NlohmannDocument().dump();
  return text;
}

namespace {

void NlohmannDump(benchmark::State& state) {
  Writing(state, [] { return NlohmannDocument().dump(); });
}
void NlohmannParse(benchmark::State& state) {
  Reading(state, PlainText(), [](std::string const& text) {
    benchmark::DoNotOptimize(nlohmann::json::parse(text).size());
  });
}
void NlohmannToCbor(benchmark::State& state) {
  Writing(state, [] { return nlohmann::json::to_cbor(NlohmannDocument()); });
}
void NlohmannFromCbor(benchmark::State& state) {
  std::vector<std::uint8_t> const bytes = nlohmann::json::to_cbor(NlohmannDocument());
  Reading(state, std::string(bytes.begin(), bytes.end()), [](std::string const& text) {
    benchmark::DoNotOptimize(nlohmann::json::from_cbor(text).size());
  });
}
BENCHMARK(NlohmannDump)->Name("Nlohmann/Dump")->Unit(benchmark::kMillisecond);
BENCHMARK(NlohmannParse)->Name("Nlohmann/Parse")->Unit(benchmark::kMillisecond);
BENCHMARK(NlohmannToCbor)->Name("Nlohmann/ToCbor")->Unit(benchmark::kMillisecond);
BENCHMARK(NlohmannFromCbor)->Name("Nlohmann/FromCbor")->Unit(benchmark::kMillisecond);

// Our own texts through rapidjson's DOM: parsed, and written back as they were.
std::string const& OurText(object::JsonLayout layout) {
  static std::string const indented = object::ToJson(Document(), object::JsonLayout::Indented);
  static std::string const compact = object::ToJson(Document(), object::JsonLayout::Compact);
  return layout == object::JsonLayout::Indented ? indented : compact;
}

void ParseOurText(benchmark::State& state, object::JsonLayout layout) {
  Reading(state, OurText(layout), [](std::string const& text) {
    rapidjson::Document document;
    document.Parse(text.c_str(), text.size());
    benchmark::DoNotOptimize(document.IsObject());
  });
}
BENCHMARK_CAPTURE(ParseOurText, Indented, object::JsonLayout::Indented)
    ->Name("RapidJson/ParseOurText/Indented")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ParseOurText, Compact, object::JsonLayout::Compact)
    ->Name("RapidJson/ParseOurText/Compact")
    ->Unit(benchmark::kMillisecond);

// The plain text through rapidjson's DOM as it comes, without this
// library's settings: the parser's floor on those bytes.
void ParsePlainText(benchmark::State& state) {
  Reading(state, PlainText(), [](std::string const& text) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseNoFlags>(text.c_str(), text.size());
    benchmark::DoNotOptimize(document.IsArray());
  });
}
BENCHMARK(ParsePlainText)->Name("RapidJson/ParsePlainText")->Unit(benchmark::kMillisecond);

// The DOM written back must be our text, byte for byte.
template <class Writer>
void WriteOurText(benchmark::State& state, object::JsonLayout layout) {
  std::string const& text = OurText(layout);
  rapidjson::Document document;
  document.Parse(text.c_str(), text.size());
  auto const write = [&] {
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    document.Accept(writer);
    return std::string(buffer.GetString(), buffer.GetSize());
  };
  if (write() != text) {
    state.SkipWithError("rapidjson did not write our text back as it was");
    return;
  }
  Writing(state, write);
}

void WriteOurIndentedText(benchmark::State& state) {
  WriteOurText<rapidjson::PrettyWriter<rapidjson::StringBuffer>>(state,
                                                                 object::JsonLayout::Indented);
}
void WriteOurCompactText(benchmark::State& state) {
  WriteOurText<rapidjson::Writer<rapidjson::StringBuffer>>(state, object::JsonLayout::Compact);
}
BENCHMARK(WriteOurIndentedText)
    ->Name("RapidJson/WriteOurText/Indented")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(WriteOurCompactText)
    ->Name("RapidJson/WriteOurText/Compact")
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ryx::bench
