// The C interface beside jansson doing the same work, so that one run gives
// the ratios: creating and releasing 1,000,000 Int32 handles; building an
// array of 1,000,000 Int32 and reading it back; a dictionary of 100,000 keys
// set and looked up.
#include <ryx/object.h>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#ifdef RYX_OBJECT_BENCH_JANSSON
#include <jansson.h>
#endif

namespace {

constexpr int Count = 1'000'000;
constexpr int KeyCount = 100'000;

std::vector<std::string> const& Keys() {
  static std::vector<std::string> const keys = [] {
    std::vector<std::string> made;
    for (int i = 0; i < KeyCount; ++i) {
      made.push_back("key" + std::to_string(i));
    }
    return made;
  }();
  return keys;
}

// All handles are alive at once before they are released, as in a program
// that builds values and drops them later.
void CapiInt32CreateRelease(benchmark::State& state) {
  std::vector<RyxObject*> handles(Count);
  for (auto _ : state) {
    for (int i = 0; i < Count; ++i) {
      handles[i] = RyxObjectInt32Create(i);
    }
    benchmark::ClobberMemory();
    for (RyxObject* const handle : handles) {
      RyxObjectRelease(handle);
    }
  }
  state.SetItemsProcessed(state.iterations() * Count);
}
BENCHMARK(CapiInt32CreateRelease)->Unit(benchmark::kMillisecond);

void CapiArrayAppendAndPeek(benchmark::State& state) {
  for (auto _ : state) {
    RyxObject* const array = RyxObjectArrayCreateObjects(nullptr);
    for (int i = 0; i < Count; ++i) {
      RyxObjectArrayAppendObject(array, RyxObjectInt32Create(i));
    }
    long long sum = 0;
    for (size_t i = 0, size = RyxObjectArraySize(array); i < size; ++i) {
      int32_t value = 0;
      RyxObjectInt32Get(RyxObjectArrayPeek(array, i), &value);
      sum += value;
    }
    benchmark::DoNotOptimize(sum);
    RyxObjectRelease(array);
  }
  state.SetItemsProcessed(state.iterations() * Count);
}
BENCHMARK(CapiArrayAppendAndPeek)->Unit(benchmark::kMillisecond);

void CapiDictSetAndPeek(benchmark::State& state) {
  for (auto _ : state) {
    RyxObject* const dictionary = RyxObjectDictCreatePairs(nullptr);
    for (int i = 0; i < KeyCount; ++i) {
      RyxObjectDictSetObject(dictionary, Keys()[i].c_str(), RyxObjectInt32Create(i));
    }
    long long sum = 0;
    for (std::string const& key : Keys()) {
      int32_t value = 0;
      RyxObjectInt32Get(RyxObjectDictPeek(dictionary, key.c_str()), &value);
      sum += value;
    }
    benchmark::DoNotOptimize(sum);
    RyxObjectRelease(dictionary);
  }
  state.SetItemsProcessed(state.iterations() * KeyCount);
}
BENCHMARK(CapiDictSetAndPeek)->Unit(benchmark::kMillisecond);

#ifdef RYX_OBJECT_BENCH_JANSSON
void JanssonIntegerCreateDecref(benchmark::State& state) {
  std::vector<json_t*> values(Count);
  for (auto _ : state) {
    for (int i = 0; i < Count; ++i) {
      values[i] = json_integer(i);
    }
    benchmark::ClobberMemory();
    for (json_t* const value : values) {
      json_decref(value);
    }
  }
  state.SetItemsProcessed(state.iterations() * Count);
}
BENCHMARK(JanssonIntegerCreateDecref)->Unit(benchmark::kMillisecond);

void JanssonArrayAppendAndGet(benchmark::State& state) {
  for (auto _ : state) {
    json_t* const array = json_array();
    for (int i = 0; i < Count; ++i) {
      json_array_append_new(array, json_integer(i));
    }
    long long sum = 0;
    for (size_t i = 0, size = json_array_size(array); i < size; ++i) {
      sum += json_integer_value(json_array_get(array, i));
    }
    benchmark::DoNotOptimize(sum);
    json_decref(array);
  }
  state.SetItemsProcessed(state.iterations() * Count);
}
BENCHMARK(JanssonArrayAppendAndGet)->Unit(benchmark::kMillisecond);

void JanssonObjectSetAndGet(benchmark::State& state) {
  for (auto _ : state) {
    json_t* const object = json_object();
    for (int i = 0; i < KeyCount; ++i) {
      json_object_set_new(object, Keys()[i].c_str(), json_integer(i));
    }
    long long sum = 0;
    for (std::string const& key : Keys()) {
      sum += json_integer_value(json_object_get(object, key.c_str()));
    }
    benchmark::DoNotOptimize(sum);
    json_decref(object);
  }
  state.SetItemsProcessed(state.iterations() * KeyCount);
}
BENCHMARK(JanssonObjectSetAndGet)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
