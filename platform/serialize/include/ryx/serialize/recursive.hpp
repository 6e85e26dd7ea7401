// cereal::Recursive<T>: a value stored under a dotted path of nested nodes.
//
// Serialize writes the path "a.b.c" as a node "a" holding a node "b" holding
// the value under the name "c". The archive needs SetNextName, StartNode,
// FinishNode and SaveValue (the template-data archive has them).
#pragma once

#include <cstring>
#include <string>

namespace cereal {

template <class T>
struct Recursive {
  char const* path;
  T* value;

  template <class Archive>
  void Serialize(Archive& archive) const {
    // Iterative, so that the depth of the path never grows the stack.
    std::size_t opened = 0;
    std::string part;
    char const* rest = path;
    for (char const* dot = std::strchr(rest, '.'); dot != nullptr; dot = std::strchr(rest, '.')) {
      part.assign(rest, dot);
      archive.SetNextName(part.c_str());
      archive.StartNode();
      ++opened;
      rest = dot + 1;
    }
    archive.SetNextName(rest);
    archive.SaveValue(*value);
    for (; opened != 0; --opened) {
      archive.FinishNode();
    }
  }
};

}  // namespace cereal
