// todo::Task, a kind of the example's own: a plain struct and the list of its
// members, which <ryx/object/record.hpp> turns into a registered kind that
// saves, loads, copies, compares, renders and passes through C handles like
// the built-in ones.
#pragma once

#include <ryx/object/record.hpp>

#include <memory>
#include <string>
#include <vector>

namespace todo {

struct Task {
  std::string title;
  unsigned priority = 0;  // 0 first
  bool done = false;
  std::vector<std::string> tags;
  // Any value, or null: here another Task to do first.
  std::shared_ptr<ryx::object::Object> blockedBy;
};

// The kind's dotted name, from which its type id follows, and the name each
// member has in every form. Found by argument-dependent lookup.
constexpr auto DescribeRecord(ryx::type::Tag<Task>) {
  using ryx::object::record::Member;
  return ryx::object::record::Description(
      "todo.Task", Member("title", &Task::title), Member("priority", &Task::priority),
      Member("done", &Task::done), Member("tags", &Task::tags),
      Member("blocked_by", &Task::blockedBy));
}

// The value class: an ryx::object::Object and a Task at once.
using TaskObject = ryx::object::Record<Task>;

}  // namespace todo
