// Entering a record kind (<ryx/object/record.hpp>) into the type registry.
//
//   RYX_OBJECT_REGISTER_RECORD(todo::Task);
//
// at namespace scope in one source file registers Record<todo::Task> while
// the program or the shared library is being loaded, and takes it out again
// when it is unloaded, whatever the order in which static objects start: the
// registry is made by its first user. A Registration object of a narrower
// scope registers the kind for its own life, and MakeInfo gives the registry
// record for whoever registers it otherwise.
#pragma once

#include <ryx/object/record.hpp>
#include <ryx/object/record/forms.hpp>
#include <ryx/object/record/plain.hpp>
#include <ryx/object/registry/get.hpp>
#include <ryx/object/registry/info.hpp>
#include <ryx/object/serialize/load_functions.hpp>
#include <ryx/object/serialize/plain_functions.hpp>
#include <ryx/object/serialize/save_functions.hpp>
#include <ryx/type/name.hpp>

#include <memory>

namespace ryx::object::record {

// The registry record of Record<T>: its id and name, a construct function
// making a default T, the save functions of the four output archives, the load
// functions of the three input archives, and its plain JSON form.
template <class T>
registry::Info MakeInfo() {
  using R = Record<T>;
  using templating::serialize::archive::output::Data;
  SaveFunctions save{detail::SaveRecord<R, T, cereal::XMLOutputArchive>{},
                     detail::SaveRecord<R, T, cereal::JSONOutputArchive>{},
                     detail::SaveRecord<R, T, cereal::PortableBinaryOutputArchive>{},
                     detail::SaveRecord<R, T, Data>{}};
  LoadFunctions load{detail::LoadRecord<R, T, cereal::XMLInputArchive>{},
                     detail::LoadRecord<R, T, cereal::JSONInputArchive>{},
                     detail::LoadRecord<R, T, cereal::PortableBinaryInputArchive>{}};
  PlainFunctions plain{detail::SavePlain<T>, detail::LoadPlain<T>};
  return registry::Info(
      Object::TypeIdOf<R>(), type::Name<R>::Value,
      []() -> std::shared_ptr<Object> { return std::make_shared<R>(); }, std::move(save),
      std::move(load), std::move(plain));
}

// Registers Record<T> for the life of the object. When another record held
// the id first, that one stays (the first registration wins), and is taken out
// all the same when this object goes.
template <class T>
class Registration {
public:
  Registration() : registry(&registry::Get()) { registry->Register(MakeInfo<T>()); }
  Registration(Registration const&) = delete;
  Registration& operator=(Registration const&) = delete;
  // A failure to lock here ends the process: a destructor cannot report it.
  ~Registration() noexcept { registry->Deregister(Object::TypeIdOf<Record<T>>()); }

private:
  registry::Registry* registry;
};

}  // namespace ryx::object::record

#define RYX_OBJECT_DETAIL_CONCAT2(a, b) a##b
#define RYX_OBJECT_DETAIL_CONCAT(a, b) RYX_OBJECT_DETAIL_CONCAT2(a, b)

// Registers Record<T> from static initialisation to unloading; at namespace
// scope, in one source file.
#define RYX_OBJECT_REGISTER_RECORD(...)                                 \
  static ::ryx::object::record::Registration<__VA_ARGS__> const         \
      RYX_OBJECT_DETAIL_CONCAT(s_ryx_object_record_registration_, __LINE__)
