#include <ryx/object/problems.hpp>

#include <ryx/object/array.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/required.hpp>

#include "object/detail/json_pointer.hpp"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ryx::object {

namespace {

constexpr char const* NullValue =
    "Null value: an unknown type name or a null record was loaded here";

// A null type with children: element i must pass child i.
bool IsPerPosition(Required const& schema) {
  return schema.GetType() == hash::MurmurThree32() && !schema.GetChildTypes().empty();
}

// A dictionary entry, visited in key order but checked by its position in the
// map's own order, which is what a per-position schema refers to.
struct Entry {
  std::string const* key;
  Object const* value;
  std::size_t position;
};

// A container whose children are being visited.
struct Open {
  Array<Object> const* array;  // null for a dictionary
  std::vector<Entry> entries;  // a dictionary's, sorted by key
  Required const* schema;
  std::size_t count;
  std::size_t level;     // the container's own; its children are one deeper
  std::size_t pathSize;  // the length of the container's pointer
  std::size_t next = 0;
};

// A depth-first walk over a heap stack of open containers, so that no depth
// of nesting reaches the thread's stack. One pointer grows and shrinks with
// the walk.
class ProblemFinder {
 public:
  std::vector<Problem> Walk(Object const& root) {
    Enter(root, 1);
    while (!open.empty()) {
      Open& top = open.back();
      path.resize(top.pathSize);
      if (top.next == top.count) {
        open.pop_back();
        continue;
      }
      std::size_t const index = top.next++;
      Object const* child = nullptr;
      std::size_t position = index;
      if (top.array != nullptr) {
        child = top.array->GetObjects()[index].get();
        detail::AppendPointerIndex(path, index);
      } else {
        Entry const& entry = top.entries[index];
        child = entry.value;
        position = entry.position;
        detail::AppendPointerKey(path, *entry.key);
      }
      // Entering the child may grow `open` and move `top`.
      Required const& schema = *top.schema;
      Visit(child, schema, position, top.level + 1);
    }
    return std::move(problems);
  }

 private:
  void Report(std::string message) { problems.push_back(Problem{path, std::move(message)}); }

  void Visit(Object const* child, Required const& schema, std::size_t position, std::size_t level) {
    if (child == nullptr) {
      Report(NullValue);
      return;
    }
    CheckElement(*child, schema, position);
    if (level > limit) {
      Report("Nested deeper than the nesting limit of " + std::to_string(limit) +
             " levels: this value is at level " + std::to_string(level));
      return;
    }
    Enter(*child, level);
  }

  // The element against its container's schema, as adding it would check it.
  void CheckElement(Object const& element, Required const& schema, std::size_t position) {
    try {
      if (!IsPerPosition(schema)) {
        schema.Check(element);
      } else if (position < schema.GetChildTypes().size()) {
        schema.GetChildTypes()[position].Check(element);
      }
    } catch (std::invalid_argument const& error) {
      Report(error.what());
    } catch (NestingLimitError const& error) {
      // Schemas too deep to compare or print here.
      Report(error.what());
    }
  }

  void CheckCount(Required const& schema, std::size_t count, char const* what) {
    std::size_t const required = schema.GetChildTypes().size();
    if (IsPerPosition(schema) && count != required) {
      Report("Holds " + std::to_string(count) + ' ' + what +
             " where its per-position schema requires exactly " + std::to_string(required));
    }
  }

  void Enter(Object const& value, std::size_t level) {
    if (value.Is<Array<Object>>()) {
      auto const& array = value.As<Array<Object>>();
      CheckCount(array.GetRequired(), array.Size(), "elements");
      if (!array.Empty()) {
        open.push_back(Open{&array, {}, &array.GetRequired(), array.Size(), level, path.size()});
      }
    } else if (value.Is<Dictionary<Object>>()) {
      auto const& dictionary = value.As<Dictionary<Object>>();
      CheckCount(dictionary.GetRequired(), dictionary.Size(), "entries");
      if (!dictionary.Empty()) {
        std::vector<Entry> entries;
        entries.reserve(dictionary.Size());
        for (auto const& [key, entry] : dictionary.GetProperties()) {
          entries.push_back(Entry{&key, entry.get(), entries.size()});
        }
        std::sort(entries.begin(), entries.end(),
                  [](Entry const& a, Entry const& b) { return *a.key < *b.key; });
        open.push_back(Open{nullptr, std::move(entries), &dictionary.GetRequired(),
                            dictionary.Size(), level, path.size()});
      }
    }
  }

  std::size_t const limit = GetNestingLimit();
  std::string path;
  std::vector<Open> open;
  std::vector<Problem> problems;
};

}  // namespace

std::vector<Problem> FindProblems(Object const& value) { return ProblemFinder().Walk(value); }

std::vector<Problem> FindProblems(std::shared_ptr<Object const> const& value) {
  if (value == nullptr) {
    return {Problem{std::string(), NullValue}};
  }
  return FindProblems(*value);
}

}  // namespace ryx::object
