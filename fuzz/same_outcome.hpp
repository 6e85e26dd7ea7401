// The differential fuzzers' check: a direct reader and the archive path give
// the same outcome for the same bytes, or the run stops with both outcomes.
#pragma once

#include <ryx/object.hpp>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>

namespace fuzz {

using ryx::object::Object;

// The value as the archive saves it, or the error.
struct Outcome {
  std::shared_ptr<Object> value;
  std::string text;
};

inline Outcome Read(std::shared_ptr<Object> (*read)(std::string_view), std::string_view bytes) {
  Outcome outcome;
  try {
    outcome.value = read(bytes);
    outcome.text = ryx::object::ToJsonThroughArchive(outcome.value);
  } catch (std::exception const& error) {
    outcome.text = std::string("error ") + typeid(error).name() + ": " + error.what();
  }
  return outcome;
}

[[noreturn]] inline void Differ(char const* what, std::string const& direct,
                                std::string const& archived) {
  std::fprintf(stderr, "%s differs from the archive path:\n--- direct\n%s\n--- archive\n%s\n", what,
               direct.c_str(), archived.c_str());
  std::abort();
}

// Both give the same value (EqualTo each other, unless it holds a NaN, which
// equals nothing) saved as the same text, or the same error.
inline void ExpectSameOutcome(char const* what, std::shared_ptr<Object> (*direct)(std::string_view),
                              std::shared_ptr<Object> (*archived)(std::string_view),
                              std::string_view bytes) {
  Outcome const first = Read(direct, bytes);
  Outcome const second = Read(archived, bytes);
  if (first.text != second.text) {
    Differ(what, first.text, second.text);
  }
  if (first.value != nullptr && second.value != nullptr &&
      first.value->EqualTo(*second.value) != first.value->EqualTo(*first.value)) {
    Differ(what, "a value EqualTo tells apart", second.text);
  }
}

inline void ExpectSameText(char const* what, std::string const& direct,
                           std::string const& archived) {
  if (direct != archived) {
    Differ(what, direct, archived);
  }
}

}  // namespace fuzz
