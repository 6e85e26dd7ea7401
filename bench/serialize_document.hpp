// The benchmark's value: the records of serialize_records.hpp built through
// the object model, each a dictionary of "id", "name", "score", "flag" and
// "tags", all in one array.
#pragma once

#include "serialize_records.hpp"

#include <ryx/object.hpp>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>

#include <memory>
#include <string>
#include <vector>

namespace ryx::bench {

std::shared_ptr<object::Object> Build(std::vector<Record> const& records);

// Built once, on first use.
std::shared_ptr<object::Object const> const& Document();

// The records as the plain JSON nlohmann::json writes of them (its dump),
// the very bytes it reads back in its own benchmark; built once.
std::string const& PlainText();

// Reports each iteration's text (for MB/s) and the time per record.
inline void Report(benchmark::State& state, std::size_t bytesPerIteration) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytesPerIteration));
  state.counters["per_record"] = benchmark::Counter(
      static_cast<double>(RecordCount),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

}  // namespace ryx::bench
