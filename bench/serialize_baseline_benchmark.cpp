// The floors and yardsticks of the serialization benchmarks, on the same
// records as plain C++ structs: cereal's own JSON and portable binary archives,
// nlohmann::json and rapidjson. Each reports MB/s of its own text.
#include "serialize_records.hpp"

// The library's JSON header configures rapidjson (its failed checks throw); it
// comes first so that every user of rapidjson in this program sees the same.
#include <ryx/serialize/archive/json.hpp>
#include <cereal/archives/portable_binary.hpp>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

using ryx::bench::MakeRecords;
using ryx::bench::Record;

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

template <class OutputArchive>
void CerealSaveBenchmark(benchmark::State& state) {
  // Built, and saved once, before the clock starts (see reused_memory.cpp).
  std::vector<Record> const& records = Records();
  benchmark::DoNotOptimize(CerealSave<OutputArchive>(records).size());
  std::size_t bytes = 0;
  for (auto _ : state) {
    std::string const text = CerealSave<OutputArchive>(records);
    bytes += text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

template <class OutputArchive, class InputArchive>
void CerealLoadBenchmark(benchmark::State& state) {
  std::string const text = CerealSave<OutputArchive>(Records());
  benchmark::DoNotOptimize(CerealLoad<InputArchive>(text).size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(CerealLoad<InputArchive>(text).size());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

void CerealJsonSave(benchmark::State& state) {
  CerealSaveBenchmark<cereal::JSONOutputArchive>(state);
}
BENCHMARK(CerealJsonSave)->Unit(benchmark::kMillisecond);

void CerealJsonLoad(benchmark::State& state) {
  CerealLoadBenchmark<cereal::JSONOutputArchive, cereal::JSONInputArchive>(state);
}
BENCHMARK(CerealJsonLoad)->Unit(benchmark::kMillisecond);

void CerealBinarySave(benchmark::State& state) {
  CerealSaveBenchmark<cereal::PortableBinaryOutputArchive>(state);
}
BENCHMARK(CerealBinarySave)->Unit(benchmark::kMillisecond);

void CerealBinaryLoad(benchmark::State& state) {
  CerealLoadBenchmark<cereal::PortableBinaryOutputArchive, cereal::PortableBinaryInputArchive>(state);
}
BENCHMARK(CerealBinaryLoad)->Unit(benchmark::kMillisecond);

nlohmann::json ToNlohmann(std::vector<Record> const& records) {
  nlohmann::json array = nlohmann::json::array();
  for (Record const& record : records) {
    array.push_back({{"id", record.id},
                     {"name", record.name},
                     {"score", record.score},
                     {"flag", record.flag},
                     {"tags", record.tags}});
  }
  return array;
}

void NlohmannDump(benchmark::State& state) {
  nlohmann::json const document = ToNlohmann(Records());
  benchmark::DoNotOptimize(document.dump().size());
  std::size_t bytes = 0;
  for (auto _ : state) {
    std::string const text = document.dump();
    bytes += text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(NlohmannDump)->Unit(benchmark::kMillisecond);

void NlohmannParse(benchmark::State& state) {
  std::string const text = ToNlohmann(Records()).dump();
  benchmark::DoNotOptimize(nlohmann::json::parse(text).size());
  for (auto _ : state) {
    benchmark::DoNotOptimize(nlohmann::json::parse(text).size());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(NlohmannParse)->Unit(benchmark::kMillisecond);

std::string RapidJsonWrite(std::vector<Record> const& records) {
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  writer.StartArray();
  for (Record const& record : records) {
    writer.StartObject();
    writer.Key("id");
    writer.Int(record.id);
    writer.Key("name");
    writer.String(record.name.c_str(), static_cast<rapidjson::SizeType>(record.name.size()));
    writer.Key("score");
    writer.Double(record.score);
    writer.Key("flag");
    writer.Bool(record.flag);
    writer.Key("tags");
    writer.StartArray();
    for (std::string const& tag : record.tags) {
      writer.String(tag.c_str(), static_cast<rapidjson::SizeType>(tag.size()));
    }
    writer.EndArray();
    writer.EndObject();
  }
  writer.EndArray();
  return std::string(buffer.GetString(), buffer.GetSize());
}

void RapidJsonWriter(benchmark::State& state) {
  std::vector<Record> const& records = Records();
  benchmark::DoNotOptimize(RapidJsonWrite(records).size());
  std::size_t bytes = 0;
  for (auto _ : state) {
    std::string const text = RapidJsonWrite(records);
    bytes += text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(RapidJsonWriter)->Unit(benchmark::kMillisecond);

void RapidJsonParse(benchmark::State& state) {
  std::string const text = RapidJsonWrite(Records());
  {
    rapidjson::Document warm;
    warm.Parse(text.c_str(), text.size());
  }
  for (auto _ : state) {
    rapidjson::Document document;
    document.Parse(text.c_str(), text.size());
    benchmark::DoNotOptimize(document.Size());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(RapidJsonParse)->Unit(benchmark::kMillisecond);

}  // namespace
