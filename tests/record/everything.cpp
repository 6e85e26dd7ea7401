#include "record/everything.hpp"

#include <limits>

namespace test {

RYX_OBJECT_REGISTER_RECORD(Everything);
RYX_OBJECT_REGISTER_RECORD(Other);

std::shared_ptr<EverythingRecord> Full() {
  using namespace ryx::object;
  auto other = std::make_shared<OtherRecord>(Other{-7});
  Everything value;
  value.flag = true;
  value.tiny = -128;
  value.small = 32767;
  value.number = std::numeric_limits<int>::min();
  value.big = std::numeric_limits<long>::max();
  value.byte = 255;
  value.word = 65535;
  value.count = 4000000000u;
  value.size = std::numeric_limits<unsigned long>::max();
  value.ratio = 0.1f;
  value.score = -1e-300;
  value.name = "line\nbreak \xc3\xa9 & <x>";
  value.numbers = {1, -2, 3};
  value.words = {"a", "", " b "};
  value.flags = {true, false};
  value.child = std::make_shared<Array<Object>>(Array<Object>::Objects{other});
  return std::make_shared<EverythingRecord>(std::move(value));
}

std::shared_ptr<ryx::object::Object> Chain(std::size_t levels) {
  auto innermost = std::make_shared<EverythingRecord>();
  innermost->child = std::make_shared<ryx::object::Int32>(1);
  std::shared_ptr<ryx::object::Object> value = innermost;
  for (std::size_t level = 1; level < levels; ++level) {
    auto record = std::make_shared<EverythingRecord>();
    record->next = std::move(value);
    value = std::move(record);
  }
  return value;
}

}  // namespace test
