// Built against the installed library: checks that headers, library and
// registry are all reachable from outside the source tree.
#include <ryx/object.hpp>

#include <iostream>
#include <memory>

int main() {
  using namespace ryx::object;
  std::shared_ptr<Object> const value = std::make_shared<Int32>(42);
  if (!value->Is<Int32>() || Object::TypeName(value->GetType()) == nullptr) {
    std::cerr << "consumer: the installed library does not know its own types\n";
    return 1;
  }
  std::cout << "consumer: " << *value << '\n';
  return 0;
}
