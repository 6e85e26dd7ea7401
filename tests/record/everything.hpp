// test::Everything, a record with a member of every supported kind, and
// test::Other, a second record kind, for the tests of records and of what
// holds them.
#pragma once

#include <ryx/object.hpp>
#include <ryx/object/record.hpp>
#include <ryx/object/record/registration.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace test {

struct Everything {
  bool flag = false;
  signed char tiny = 0;
  short small = 0;
  int number = 0;
  long big = 0;
  unsigned char byte = 0;
  unsigned short word = 0;
  unsigned int count = 0;
  unsigned long size = 0;
  float ratio = 0;
  double score = 0;
  std::string name;
  std::vector<int> numbers;
  std::vector<std::string> words;
  std::vector<bool> flags;
  std::shared_ptr<ryx::object::Object> child;
  std::shared_ptr<ryx::object::Object> next;
};

constexpr auto DescribeRecord(ryx::type::Tag<Everything>) {
  using ryx::object::record::Member;
  using E = Everything;
  return ryx::object::record::Description(
      "test.record.Everything", Member("flag", &E::flag), Member("tiny", &E::tiny),
      Member("small", &E::small), Member("number", &E::number), Member("big", &E::big),
      Member("byte", &E::byte), Member("word", &E::word), Member("count", &E::count),
      Member("size", &E::size), Member("ratio", &E::ratio), Member("score", &E::score),
      Member("name", &E::name), Member("numbers", &E::numbers), Member("words", &E::words),
      Member("flags", &E::flags), Member("child", &E::child), Member("next", &E::next));
}

struct Other {
  int number = 0;
};

constexpr auto DescribeRecord(ryx::type::Tag<Other>) {
  return ryx::object::record::Description("test.record.Other",
                                          ryx::object::record::Member("number", &Other::number));
}

using EverythingRecord = ryx::object::Record<Everything>;
using OtherRecord = ryx::object::Record<Other>;

// Every member set away from its default, edges of the ranges included; the
// child an array holding an Other, `next` null.
std::shared_ptr<EverythingRecord> Full();

// `levels` records, each holding the next as `next`; the innermost holds an
// Int32 as its child.
std::shared_ptr<ryx::object::Object> Chain(std::size_t levels);

}  // namespace test
