// Building, walking, copying and emptying containers at scale. That a walk
// allocates nothing per step is shown by iteration_allocation_test.
#include <ryx/object.hpp>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ryx::object;

constexpr int ArraySize = 1000000;
constexpr int DictionarySize = 100000;

std::vector<std::shared_ptr<Object>> Int32Values(int count) {
  std::vector<std::shared_ptr<Object>> values;
  values.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    values.push_back(std::make_shared<Int32>(i));
  }
  return values;
}

void AppendInt32(benchmark::State& state, Required const& required) {
  auto const values = Int32Values(ArraySize);
  for (auto _ : state) {
    Array<Object> array(required, {});
    for (auto const& value : values) {
      array.Append(value);
    }
    benchmark::DoNotOptimize(array.Size());
  }
  state.SetItemsProcessed(state.iterations() * ArraySize);
}

void AppendInt32UnderTheDefaultSchema(benchmark::State& state) { AppendInt32(state, Required()); }
BENCHMARK(AppendInt32UnderTheDefaultSchema)->Unit(benchmark::kMillisecond);

void AppendInt32UnderATypedSchema(benchmark::State& state) {
  AppendInt32(state, Required(Object::TypeIdOf<Int32>()));
}
BENCHMARK(AppendInt32UnderATypedSchema)->Unit(benchmark::kMillisecond);

void WalkArrayOfInt32(benchmark::State& state) {
  Array<Object> const array(Int32Values(ArraySize));
  for (auto _ : state) {
    long long sum = 0;
    for (Object const& value : static_cast<Object const&>(array)) {
      sum += value.As<Int32>().Get();
    }
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * ArraySize);
}
BENCHMARK(WalkArrayOfInt32)->Unit(benchmark::kMillisecond);

void InsertAndPopDictionaryKeys(benchmark::State& state) {
  std::vector<std::string> keys;
  for (int i = 0; i < DictionarySize; ++i) {
    keys.push_back("key" + std::to_string(i));
  }
  auto const values = Int32Values(DictionarySize);
  for (auto _ : state) {
    Dictionary<Object> dictionary;
    for (int i = 0; i < DictionarySize; ++i) {
      dictionary.Insert(keys[static_cast<std::size_t>(i)], values[static_cast<std::size_t>(i)]);
    }
    for (auto const& key : keys) {
      benchmark::DoNotOptimize(dictionary.Pop(key));
    }
  }
  state.SetItemsProcessed(state.iterations() * DictionarySize * 2);
}
BENCHMARK(InsertAndPopDictionaryKeys)->Unit(benchmark::kMillisecond);

void DeepCopyArrayOfInt32(benchmark::State& state) {
  Array<Object> const source(Int32Values(ArraySize));
  for (auto _ : state) {
    Array<Object> copy;
    copy.Set(source);
    benchmark::DoNotOptimize(copy.Size());
  }
  state.SetItemsProcessed(state.iterations() * ArraySize);
}
BENCHMARK(DeepCopyArrayOfInt32)->Unit(benchmark::kMillisecond);

void ReleaseDeeplyNestedArrays(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::shared_ptr<Object> deep = std::make_shared<Int32>(0);
    for (int level = 0; level < 100000; ++level) {
      deep = std::make_shared<Array<Object>>(Array<Object>::Objects{std::move(deep)});
    }
    state.ResumeTiming();
    deep.reset();
  }
  state.SetItemsProcessed(state.iterations() * 100000);
}
BENCHMARK(ReleaseDeeplyNestedArrays)->Unit(benchmark::kMillisecond);

}  // namespace
