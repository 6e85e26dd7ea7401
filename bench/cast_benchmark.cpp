// A successful Is/As is one 32-bit compare; dynamic_cast walks the class
// hierarchy. Make and Copy go through the registry's lock and allocate.
#include <ryx/object.hpp>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

using namespace ryx::object;

std::vector<std::shared_ptr<Object>> MixedValues() {
  std::vector<std::shared_ptr<Object>> values;
  for (int i = 0; i < 64; ++i) {
    if (i % 2 == 0) {
      values.push_back(std::make_shared<Int32>(i));
    } else {
      values.push_back(std::make_shared<Double>(i));
    }
  }
  return values;
}

void IsInt32(benchmark::State& state) {
  auto const values = MixedValues();
  for (auto _ : state) {
    int hits = 0;
    for (auto const& value : values) {
      hits += value->Is<Int32>() ? 1 : 0;
    }
    benchmark::DoNotOptimize(hits);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(values.size()));
}
BENCHMARK(IsInt32);

void DynamicCastInt32(benchmark::State& state) {
  auto const values = MixedValues();
  for (auto _ : state) {
    int hits = 0;
    for (auto const& value : values) {
      hits += dynamic_cast<Int32 const*>(value.get()) != nullptr ? 1 : 0;
    }
    benchmark::DoNotOptimize(hits);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(values.size()));
}
BENCHMARK(DynamicCastInt32);

void AsInt32(benchmark::State& state) {
  std::shared_ptr<Object> const value = std::make_shared<Int32>(7);
  for (auto _ : state) {
    benchmark::DoNotOptimize(value->As<Int32>().Get());
  }
}
BENCHMARK(AsInt32);

void DynamicCastReferenceInt32(benchmark::State& state) {
  std::shared_ptr<Object> const value = std::make_shared<Int32>(7);
  for (auto _ : state) {
    benchmark::DoNotOptimize(dynamic_cast<Int32&>(*value).Get());
  }
}
BENCHMARK(DynamicCastReferenceInt32);

void MakeInt32ThroughTheRegistry(benchmark::State& state) {
  constexpr auto id = Object::TypeIdOf<Int32>();
  for (auto _ : state) {
    benchmark::DoNotOptimize(Object::Make(id));
  }
}
BENCHMARK(MakeInt32ThroughTheRegistry);

void MakeSharedInt32Directly(benchmark::State& state) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::make_shared<Int32>(0));
  }
}
BENCHMARK(MakeSharedInt32Directly);

void CopyInt32(benchmark::State& state) {
  Int32 const source(42);
  for (auto _ : state) {
    benchmark::DoNotOptimize(Object::Copy(source));
  }
}
BENCHMARK(CopyInt32);

void CopyString(benchmark::State& state) {
  String const source("a short string value");
  for (auto _ : state) {
    benchmark::DoNotOptimize(Object::Copy(source));
  }
}
BENCHMARK(CopyString);

}  // namespace
