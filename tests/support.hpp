// Helpers shared by the C++ tests: value makers, exception texts, a run on a
// thread of a given stack size, a value of an unregistered type, and a snapshot that proves a failed container
// operation changed nothing.
#pragma once

#include <ryx/object.hpp>

#include <gtest/gtest.h>

#include <pthread.h>

#include <exception>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace ryx::object::testing {

inline std::shared_ptr<Object> MakeInt(int value) { return std::make_shared<Int32>(value); }
inline std::shared_ptr<Object> MakeString(std::string value) {
  return std::make_shared<String>(std::move(value));
}
inline std::shared_ptr<Object> MakeBool(bool value) { return std::make_shared<Bool>(value); }

inline Required const Int32Schema{Object::TypeIdOf<Int32>()};
inline Required const StringSchema{Object::TypeIdOf<String>()};
inline Required const ArraySchema{Object::TypeIdOf<Array<Object>>()};

// The text of the exception E thrown by `call`, or a test failure.
template <class E, class Call>
std::string MessageOf(Call call) {
  try {
    call();
  } catch (E const& e) {
    return e.what();
  } catch (std::exception const& e) {
    ADD_FAILURE() << "unexpected exception: " << e.what();
    return std::string();
  }
  ADD_FAILURE() << "no exception";
  return std::string();
}

// What `call` ended with on a thread of `stackSize` bytes: "finished",
// "refused" for NestingLimitError, or the text of another exception. An
// overflow kills the test program.
inline std::string RunOnStack(std::size_t stackSize, std::function<void()> const& call) {
  struct Run {
    std::function<void()> const& call;
    std::string outcome;
  } run{call, "finished"};
  auto const body = [](void* argument) -> void* {
    Run& run = *static_cast<Run*>(argument);
    try {
      run.call();
    } catch (NestingLimitError const&) {
      run.outcome = "refused";
    } catch (std::exception const& e) {
      run.outcome = e.what();
    }
    return nullptr;
  };
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, stackSize);
  pthread_t thread;
  EXPECT_EQ(pthread_create(&thread, &attributes, body, &run), 0);
  pthread_attr_destroy(&attributes);
  pthread_join(thread, nullptr);
  return run.outcome;
}

// A value whose type is not registered, and so cannot be copied.
class Unregistered final : public Object {
public:
  Unregistered() : Object(hash::MurmurThree32::MakeData("test.Unregistered")) {}
  void Set(Object const&) override {}
  bool EqualTo(Object const& other) const override { return &other == this; }
};

// Everything a failed operation must leave alone: the elements in their order,
// how many owners each has, and the schema.
struct Snapshot {
  std::vector<Object const*> elements;
  std::vector<long> useCounts;
  Required required;

  template <class Container>
  static Snapshot Of(Container const& container) {
    Snapshot snapshot;
    for (auto it = container.Begin(); it != container.End(); ++it) {
      snapshot.elements.push_back(it.operator->().get());
      // The iterator holds one more reference while it stands on the element.
      snapshot.useCounts.push_back(it.operator->().use_count() - 2);
    }
    snapshot.required = container.GetRequired();
    return snapshot;
  }

  friend bool operator==(Snapshot const& a, Snapshot const& b) {
    return a.elements == b.elements && a.useCounts == b.useCounts && a.required == b.required;
  }
};

}  // namespace ryx::object::testing

namespace ryx::object {

// Failed comparisons of problems print the pointer and the message.
inline void PrintTo(Problem const& problem, std::ostream* os) {
  *os << '"' << problem.path << "\": " << problem.message;
}

}  // namespace ryx::object
