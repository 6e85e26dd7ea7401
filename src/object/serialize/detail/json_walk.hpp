// detail::JsonWalk<Form>: the walk of the direct JSON writers over a value.
//
// It visits each value once, depth first, one nesting level each, finds the
// value's kind through its registry record and hands every part of it to
// the form, which writes it. Containers and types of someone else's each
// take a nesting level; a container refuses children past the limit for the
// leaf values, which do not recurse and need no level of their own (most
// values are leaves). The form: the typed form (json_writer.cpp) writes the
// members the registered save functions write, the plain form
// (plain_json_writer.cpp) plain JSON. The walk knows the kinds and their
// children; the form knows the text. A Form provides:
//
//   LibraryKind KindOf(RecordMemo::Entry const&)   which of the walk's kinds
//   [[noreturn]] void NoFunction(Entry const&)       the record has none
//   bool Other(Object const&, Entry const&, JsonWalk&)  any other type
//   void Null()                                      a null value
//   void Open(Entry const&), void Close()            around every value
//   void Scalar(T)                                   a primitive's value
//   void OpenArray(ArrayKind const&), CloseArray(ArrayKind const&)
//   bool Element(std::size_t index, F writeChild)
//   void OpenDictionary(DictionaryKind const&), CloseDictionary(...)
//   bool Entry(std::string const& key, F writeChild)
//   void Enumerator(EnumKind const&), Pointer(object::Pointer<Object, T> const&)
//
// Every function returning bool passes on a false from the walk: the form
// leaves the value to cereal's archive then.
#pragma once

#include <ryx/object/primitive.hpp>

#include <cstddef>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/prefetch.hpp"
#include "object/serialize/detail/kinds.hpp"
#include "object/serialize/detail/record_memo.hpp"
#include "object/serialize/detail/type_record.hpp"

namespace ryx::object::detail {

template <class Form>
class JsonWalk {
 public:
  explicit JsonWalk(Form& form) : form(form) {}

  // Writes `value` (null writes the form's null); false when the form leaves
  // a value to the archive.
  [[nodiscard]] bool Value(Object const* value) {
    if (value == nullptr) {
      form.Null();
      return true;
    }
    RecordMemo::Entry const* const record = records.Find(value->GetType());
    if (record == nullptr) {
      ThrowNotRegistered(*value);
    }
    switch (form.KindOf(*record)) {
      case LibraryKind::none:
        form.NoFunction(*record);
      case LibraryKind::other: {
        NestingGuard const level(Nesting::value);
        return form.Other(*value, *record, *this);
      }
      case LibraryKind::Bool:
        return Visit<Bool>(*value, *record);
      case LibraryKind::Int8:
        return Visit<Int8>(*value, *record);
      case LibraryKind::Int16:
        return Visit<Int16>(*value, *record);
      case LibraryKind::Int32:
        return Visit<Int32>(*value, *record);
      case LibraryKind::Int64:
        return Visit<Int64>(*value, *record);
      case LibraryKind::UInt8:
        return Visit<UInt8>(*value, *record);
      case LibraryKind::UInt16:
        return Visit<UInt16>(*value, *record);
      case LibraryKind::UInt32:
        return Visit<UInt32>(*value, *record);
      case LibraryKind::UInt64:
        return Visit<UInt64>(*value, *record);
      case LibraryKind::Float:
        return Visit<Float>(*value, *record);
      case LibraryKind::Double:
        return Visit<Double>(*value, *record);
      case LibraryKind::String:
        return Visit<String>(*value, *record);
      case LibraryKind::Array: {
        NestingGuard const level(Nesting::value);
        return Visit<ArrayKind>(*value, *record, &level);
      }
      case LibraryKind::Dictionary: {
        NestingGuard const level(Nesting::value);
        return Visit<DictionaryKind>(*value, *record, &level);
      }
      case LibraryKind::Enum:
        return Visit<EnumKind>(*value, *record);
      case LibraryKind::Pointer:
        return Visit<PointerKind>(*value, *record);
      case LibraryKind::ConstPointer:
        return Visit<ConstPointerKind>(*value, *record);
    }
    return false;
  }

 private:
  // False when the record's function is of another kind than the value (the
  // checked cast of the archive's save function would throw).
  template <class T>
  [[nodiscard]] bool Visit(Object const& value, RecordMemo::Entry const& record,
                           NestingGuard const* level = nullptr) {
    if (!value.Is<T>()) {
      return false;
    }
    form.Open(record);
    if (!Content(static_cast<T const&>(value), level)) {
      return false;
    }
    form.Close();
    return true;
  }

  template <class T>
  [[nodiscard]] bool Content(Primitive<T, Object> const& primitive, NestingGuard const*) {
    form.Scalar(primitive.Get());
    return true;
  }

  [[nodiscard]] bool Content(ArrayKind const& array, NestingGuard const* level) {
    form.OpenArray(array);
    ArrayKind::Objects const& objects = array.GetObjects();
    if (!objects.empty()) {
      level->RefuseDeeperChildren();
    }
    for (std::size_t index = 0; index != objects.size(); ++index) {
      PrefetchAhead(objects, index);
      if (!form.Element(index, [&] { return Value(objects[index].get()); })) {
        return false;
      }
    }
    form.CloseArray(array);
    return true;
  }

  [[nodiscard]] bool Content(DictionaryKind const& dictionary, NestingGuard const* level) {
    form.OpenDictionary(dictionary);
    if (!dictionary.Empty()) {
      level->RefuseDeeperChildren();
    }
    for (auto const& entry : dictionary.GetProperties()) {
      if (!form.Entry(entry.first, [&] { return Value(entry.second.get()); })) {
        return false;
      }
    }
    form.CloseDictionary(dictionary);
    return true;
  }

  [[nodiscard]] bool Content(EnumKind const& enumerator, NestingGuard const*) {
    form.Enumerator(enumerator);
    return true;
  }

  template <class T>
  [[nodiscard]] bool Content(object::Pointer<Object, T> const& pointer, NestingGuard const*) {
    form.Pointer(pointer);
    return true;
  }

  Form& form;
  RecordMemo records;
};

}  // namespace ryx::object::detail
