// Registers todo.Task while the program or the plugin holding this file is
// loaded.
#include "task.hpp"

#include <ryx/object/record/registration.hpp>

RYX_OBJECT_REGISTER_RECORD(todo::Task);
