// The library's forms on the benchmark's mixed records, each a dictionary of
// an Int32 id, a String name, a Double score, a Bool flag and an array of
// three Strings, all in one array. Each reports MB/s of its own text; the
// baselines on plain structs run beside them in the same program.
#include "serialize_records.hpp"

#include <ryx/object.hpp>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;

// The benchmark's value, built through the object model from plain records.
std::shared_ptr<Object> Build(std::vector<ryx::bench::Record> const& plainRecords) {
  auto records = std::make_shared<Array<Object>>();
  records->Reserve(plainRecords.size());
  for (ryx::bench::Record const& plain : plainRecords) {
    auto tags = std::make_shared<Array<Object>>();
    tags->Reserve(plain.tags.size());
    for (std::string const& tag : plain.tags) {
      tags->Append(std::make_shared<String>(tag));
    }
    auto record = std::make_shared<Dictionary<Object>>();
    record->Reserve(5);
    record->Insert("id", std::make_shared<Int32>(plain.id));
    record->Insert("name", std::make_shared<String>(plain.name));
    record->Insert("score", std::make_shared<Double>(plain.score));
    record->Insert("flag", std::make_shared<Bool>(plain.flag));
    record->Insert("tags", std::move(tags));
    records->Append(std::move(record));
  }
  return records;
}

std::shared_ptr<Object const> const& Document() {
  static std::shared_ptr<Object const> const document = Build(ryx::bench::MakeRecords());
  return document;
}

template <std::string (*To)(std::shared_ptr<Object const> const&)>
void Saving(benchmark::State& state) {
  // Built, and saved once, before the clock starts (see reused_memory.cpp).
  std::shared_ptr<Object const> const& document = Document();
  benchmark::DoNotOptimize(To(document).size());
  std::size_t bytes = 0;
  for (auto _ : state) {
    std::string const text = To(document);
    bytes += text.size();
    benchmark::DoNotOptimize(text.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

template <std::string (*To)(std::shared_ptr<Object const> const&),
          std::shared_ptr<Object> (*From)(std::string_view)>
void Loading(benchmark::State& state) {
  std::string const text = To(Document());
  benchmark::DoNotOptimize(From(text).get());
  for (auto _ : state) {
    benchmark::DoNotOptimize(From(text).get());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}

BENCHMARK_TEMPLATE(Saving, ToJson)->Name("ToJson")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Loading, ToJson, FromJson)->Name("FromJson")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Saving, ToXml)->Name("ToXml")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Loading, ToXml, FromXml)->Name("FromXml")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Saving, ToBinary)->Name("ToBinary")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Loading, ToBinary, FromBinary)
    ->Name("FromBinary")
    ->Unit(benchmark::kMillisecond);

// The floor under FromBinary: the same value built through the object model
// from records already in memory, and released, with no text to read. A load
// makes and frees the same blocks, so it cannot be faster than this. Its MB/s
// count the binary text of the value, so the rate compares with FromBinary.
void BuildAndReleaseBenchmark(benchmark::State& state) {
  std::vector<ryx::bench::Record> const plainRecords = ryx::bench::MakeRecords();
  std::size_t const bytes = ToBinary(Document()).size();
  benchmark::DoNotOptimize(Build(plainRecords).get());
  for (auto _ : state) {
    benchmark::DoNotOptimize(Build(plainRecords).get());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}
BENCHMARK(BuildAndReleaseBenchmark)->Name("BuildAndRelease")->Unit(benchmark::kMillisecond);

// The tree has no text of its own: its MB/s count the JSON text of the same
// value, so the rate compares with the other forms.
void ToTemplateDataBenchmark(benchmark::State& state) {
  std::shared_ptr<Object const> const& document = Document();
  std::size_t const bytes = ToJson(document).size();
  {
    mstch::node const warm = ToTemplateData(document);
    benchmark::DoNotOptimize(&warm);
  }
  for (auto _ : state) {
    mstch::node const tree = ToTemplateData(document);
    benchmark::DoNotOptimize(&tree);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}
BENCHMARK(ToTemplateDataBenchmark)->Name("ToTemplateData")->Unit(benchmark::kMillisecond);

}  // namespace
