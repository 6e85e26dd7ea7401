// The library's forms on the benchmark's records (serialize_document.hpp).
// Each reports MB/s of its own text and the time per record; the yardsticks
// run beside them in the same program (serialize_baseline_benchmark.cpp).
#include "serialize_document.hpp"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ryx::bench {

using namespace ryx::object;

std::shared_ptr<Object> Build(std::vector<Record> const& plainRecords) {
  auto records = std::make_shared<Array<Object>>();
  records->Reserve(plainRecords.size());
  for (Record const& plain : plainRecords) {
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
  static std::shared_ptr<Object const> const document = Build(MakeRecords());
  return document;
}

namespace {

template <class To>
void Saving(benchmark::State& state, To to) {
  // Built, and saved once, before the clock starts (see reused_memory.cpp).
  std::shared_ptr<Object const> const& document = Document();
  std::size_t const bytes = to(document).size();
  for (auto _ : state) {
    std::string const text = to(document);
    benchmark::DoNotOptimize(text.data());
  }
  Report(state, bytes);
}

template <class To, class From>
void Loading(benchmark::State& state, To to, From from) {
  std::string const text = to(Document());
  benchmark::DoNotOptimize(from(text).get());
  for (auto _ : state) {
    benchmark::DoNotOptimize(from(text).get());
  }
  Report(state, text.size());
}

template <JsonLayout Layout>
std::string Json(std::shared_ptr<Object const> const& value) {
  return ToJson(value, Layout);
}

template <JsonLayout Layout>
std::string JsonThroughArchive(std::shared_ptr<Object const> const& value) {
  return ToJsonThroughArchive(value, Layout);
}

constexpr auto Indented = JsonLayout::Indented;
constexpr auto Compact = JsonLayout::Compact;

BENCHMARK_CAPTURE(Saving, Indented, Json<Indented>)
    ->Name("ToJson/Indented")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Saving, Compact, Json<Compact>)
    ->Name("ToJson/Compact")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Loading, Indented, Json<Indented>, FromJson)
    ->Name("FromJson/Indented")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Loading, Compact, Json<Compact>, FromJson)
    ->Name("FromJson/Compact")
    ->Unit(benchmark::kMillisecond);
// The archive path: cereal's archives and the registered functions, which
// ToJson and FromJson used before they wrote and read directly.
BENCHMARK_CAPTURE(Saving, Indented, JsonThroughArchive<Indented>)
    ->Name("ToJsonThroughArchive/Indented")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Loading, Indented, Json<Indented>, FromJsonThroughArchive)
    ->Name("FromJsonThroughArchive/Indented")
    ->Unit(benchmark::kMillisecond);
// Plain JSON: written from the records' value; read from nlohmann::json's own
// text of the same records, without a schema and with theirs.
std::string PlainCompact(std::shared_ptr<Object const> const& value) {
  return ToPlainJson(value, JsonLayout::Compact);
}

void ReadingPlain(benchmark::State& state, char const* schemaText) {
  std::string const& text = PlainText();
  Required const schema = ParseRequired(schemaText);
  benchmark::DoNotOptimize(FromPlainJson(text, schema).get());
  for (auto _ : state) {
    benchmark::DoNotOptimize(FromPlainJson(text, schema).get());
  }
  Report(state, text.size());
}

BENCHMARK_CAPTURE(Saving, PlainCompact, PlainCompact)
    ->Name("ToPlainJson/Compact")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadingPlain, Untyped, "any")
    ->Name("FromPlainJson")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadingPlain, Typed, "Array<Dictionary>")
    ->Name("FromPlainJson/Schema")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Saving, Binary, ToBinary)->Name("ToBinary")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Loading, Binary, ToBinary, FromBinary)
    ->Name("FromBinary")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Saving, Xml, ToXml)->Name("ToXml")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Loading, Xml, ToXml, FromXml)->Name("FromXml")->Unit(benchmark::kMillisecond);

// The floor under every load: the same value built through the object model
// from records already in memory, and released, with no text to read. A load
// makes and frees the same blocks, so it cannot be faster than this. Its MB/s
// count the binary text of the value, so the rate compares with FromBinary.
void BuildAndRelease(benchmark::State& state) {
  std::vector<Record> const plainRecords = MakeRecords();
  std::size_t const bytes = ToBinary(Document()).size();
  benchmark::DoNotOptimize(Build(plainRecords).get());
  for (auto _ : state) {
    benchmark::DoNotOptimize(Build(plainRecords).get());
  }
  Report(state, bytes);
}
BENCHMARK(BuildAndRelease)->Unit(benchmark::kMillisecond);

// The tree has no text of its own: its MB/s count the indented JSON text of
// the same value, so the rate compares with the other forms.
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
  Report(state, bytes);
}
BENCHMARK(ToTemplateDataBenchmark)->Name("ToTemplateData")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace ryx::bench
