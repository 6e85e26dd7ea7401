// The mixed document of the serialization benchmarks: records of an Int32 id,
// a String name, a Double score, a Bool flag and an array of three Strings,
// as plain C++ structs for the baselines.
#pragma once

#include <cereal/cereal.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace ryx::bench {

inline constexpr std::size_t RecordCount = 200000;

struct Record {
  int id = 0;
  std::string name;
  double score = 0.0;
  bool flag = false;
  std::vector<std::string> tags;

  template <class Archive>
  void serialize(Archive& archive) {
    archive(CEREAL_NVP(id), CEREAL_NVP(name), CEREAL_NVP(score), CEREAL_NVP(flag),
            CEREAL_NVP(tags));
  }
};

// Deterministic contents, so every form sees the same values.
inline std::vector<Record> MakeRecords() {
  std::vector<Record> records(RecordCount);
  for (std::size_t i = 0; i < RecordCount; ++i) {
    Record& record = records[i];
    record.id = static_cast<int>(i);
    record.name = "record-" + std::to_string(i);
    record.score = static_cast<double>(i) * 0.25 + 0.125;
    record.flag = i % 3 == 0;
    record.tags = {"alpha", "beta-" + std::to_string(i % 10), "gamma"};
  }
  return records;
}

}  // namespace ryx::bench
