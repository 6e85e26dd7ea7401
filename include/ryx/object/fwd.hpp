// Forward declarations of the object model and of the archives its registry
// names, so that headers can refer to them without pulling them in.
#pragma once

// Visible by default, like the library's own types: functions instantiated for
// these archives (Save, Load, the registry's functions) are exported, which a
// hidden argument type would prevent.
#pragma GCC visibility push(default)
namespace cereal {
class XMLOutputArchive;
class XMLInputArchive;
class JSONOutputArchive;
class JSONInputArchive;
class PortableBinaryOutputArchive;
class PortableBinaryInputArchive;
}  // namespace cereal

namespace ryx::templating::serialize::archive::output {
class Data;
}  // namespace ryx::templating::serialize::archive::output
#pragma GCC visibility pop

namespace ryx::object {

class Object;
class Required;
class Adaptor;

namespace container {
class Iterator;
class ConstIterator;
}  // namespace container

namespace registry {
class Info;
}  // namespace registry

}  // namespace ryx::object
