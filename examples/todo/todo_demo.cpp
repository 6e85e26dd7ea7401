// A kind of one's own in every place a built-in kind goes: todo::Task (see
// task.hpp) saved and loaded in every form, checked by a schema, walked,
// rendered into a template and handed to C code through a handle.
#include "report.h"
#include "task.hpp"

#include <ryx/object.hpp>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using namespace ryx::object;
using todo::Task;
using todo::TaskObject;

void Check(bool condition, char const* what) {
  if (!condition) {
    throw std::runtime_error(std::string("unexpected: ") + what);
  }
}

}  // namespace

int main() try {
  // A Task's members are the record's own.
  auto const shop = std::make_shared<TaskObject>(Task{"buy paint", 2, false, {"errand"}, nullptr});
  auto const task = std::make_shared<TaskObject>();
  task->title = "paint the fence";
  task->priority = 1;
  task->tags = {"garden", "weekend"};
  task->blockedBy = shop;

  // Every form, and back to an equal value.
  std::string const json = ToJson(task, JsonLayout::Compact);
  std::cout << json << '\n';
  Check(FromJson(json)->EqualTo(*task), "JSON round trip");
  Check(FromXml(ToXml(task))->EqualTo(*task), "XML round trip");
  Check(FromBinary(ToBinary(task))->EqualTo(*task), "binary round trip");
  std::cout << "JSON, XML and binary (" << ToBinary(task).size() << " bytes) load back equal\n";

  // Plain JSON: an object of the members; a schema says which kind to read.
  std::string const plain = ToPlainJson(shop, JsonLayout::Compact);
  std::cout << "plain: " << plain << '\n';
  Check(FromPlainJson(plain, Required(Object::TypeIdOf<TaskObject>()))->EqualTo(*shop),
        "plain JSON round trip");

  // A copy is deep and equal; changing one member makes it differ.
  auto const copy = std::static_pointer_cast<TaskObject>(Object::Copy(*task));
  Check(copy->blockedBy != task->blockedBy && copy->EqualTo(*task), "deep copy");
  copy->done = true;
  Check(!copy->EqualTo(*task), "changed copy");

  // A schema of tasks takes tasks only.
  Array<Object> tasks(Required(Object::TypeIdOf<TaskObject>()), {task, copy});
  try {
    tasks.Append(std::make_shared<String>("not a task"));
    Check(false, "schema refusal");
  } catch (std::invalid_argument const& refusal) {
    std::cout << "the schema refuses: " << refusal.what() << '\n';
  }

  // Walking a task visits its children, here the task it waits for.
  for (Object const& child : static_cast<Object const&>(*task)) {
    std::cout << "waits for: " << child.As<TaskObject>().title << '\n';
  }

  // Members render under their names, children as nested sections.
  std::cout << Render("{{title}} (priority {{priority}}){{#blocked_by}}, after: {{title}}"
                      "{{/blocked_by}}{{#tags}} #{{.}}{{/tags}}\n",
                      task);

  // C code takes the task through a handle, as it takes any value.
  RyxObject* const handle = Convert(task);
  int const reported = ReportTask(handle);
  RyxObjectRelease(handle);
  Check(reported == 0, "C report");
  return EXIT_SUCCESS;
} catch (std::exception const& e) {
  std::cerr << "todo_demo: " << e.what() << '\n';
  return EXIT_FAILURE;
}
