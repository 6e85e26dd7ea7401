// Creating and releasing 1,000,000 Int32 handles through the C interface,
// beside jansson doing the same with its integers, so that one run gives the
// ratio.
#include <ryx/object.h>

#include <benchmark/benchmark.h>

#include <vector>

#ifdef RYX_OBJECT_BENCH_JANSSON
#include <jansson.h>
#endif

namespace {

constexpr int Count = 1'000'000;

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
#endif

}  // namespace
