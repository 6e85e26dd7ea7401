// ryx::object::Record<T>: a class of the user's as a kind of its own.
//
// T is a plain class (a struct of data members, default-constructible and
// copyable) whose namespace describes it with a constexpr DescribeRecord
// (<ryx/object/record/description.hpp>): its dotted type name and its
// members. Record<T> is then an Object and a T at once: it has the type id of
// that name, copies (Set) and compares (EqualTo) member by member, walks its
// non-null children, and, once registered (<ryx/object/record/registration.hpp>),
// saves and loads in every form, renders into templates and reads and writes
// plain JSON like the built-in kinds.
//
//   struct Task {
//     std::string title;
//     unsigned priority = 0;
//     std::shared_ptr<ryx::object::Object> details;
//   };
//   constexpr auto DescribeRecord(ryx::type::Tag<Task>) { ... }
//   RYX_OBJECT_REGISTER_RECORD(Task);                 // in one source file
//
//   auto task = std::make_shared<ryx::object::Record<Task>>();
//   task->title = "write the report";                 // a Task's members
//   std::string json = ryx::object::ToJson(task);
//
// Members may be the C++ types of the primitive kinds, std::string, a
// std::vector of those, and children (std::shared_ptr<Object>, null or any
// value, records included). Children nest to any depth: saving, loading,
// copying and comparing count them against the nesting limit and the thread's
// stack, and releasing them never recurses. T's own names should not hide
// those of Object (Set, EqualTo, Begin, GetType, ...).
#pragma once

#include <ryx/object/detail/child_release.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/record/description.hpp>
#include <ryx/object/record/members.hpp>
#include <ryx/type/name.hpp>

#include <cstddef>
#include <memory>
#include <utility>

namespace ryx::object {

template <class T>
class Record final : public Object, public T {
  static_assert(record::Checked<T>::value);

public:
  Record() : Object(TypeIdOf<Record>()), T() {}
  explicit Record(T value) : Object(TypeIdOf<Record>()), T(std::move(value)) {}
  // Copies deeply, like Set(Object const&).
  Record(Record const& other) : Object(other), T() { record::detail::CopyRecord<T>(other, *this); }
  Record& operator=(Record const&) = delete;

  // Children go without recursion, however deep they nest.
  ~Record() override {
    if constexpr (record::detail::ChildCount<T> != 0) {
      for (std::size_t index = 0; index != record::detail::ChildCount<T>; ++index) {
        object::detail::ChildRelease::Release(Slot(index));
      }
    }
  }

  // The members as a T.
  T& Get() noexcept { return *this; }
  T const& Get() const noexcept { return *this; }

  // Takes over the members of another record of T, children copied deeply;
  // BadCast when `other` is of another kind. Nothing changes when it throws.
  void Set(Object const& other) override {
    record::detail::CopyRecord<T>(other.As<Record>(), *this);
  }

  // Equal members, children EqualTo (two nulls are equal); false for a value
  // of another kind.
  bool EqualTo(Object const& other) const override {
    return other.Is<Record>() && record::detail::EqualRecords<T>(*this, other.As<Record>());
  }

  // The non-null children, in member order.
  container::ConstIterator Begin() const override {
    auto next = [this, index = std::size_t(0)]() mutable -> std::shared_ptr<Object const> {
      return NextChild(index);
    };
    std::shared_ptr<Object const> first = next();
    if (!first) {
      return container::ConstIterator();
    }
    return container::ConstIterator(std::move(next), std::move(first));
  }
  container::Iterator Begin() override {
    auto next = [this, index = std::size_t(0)]() mutable { return NextChild(index); };
    std::shared_ptr<Object> first = next();
    if (!first) {
      return container::Iterator();
    }
    return container::Iterator(std::move(next), std::move(first));
  }
  container::ConstIterator End() const override { return container::ConstIterator(); }
  container::Iterator End() override { return container::Iterator(); }

private:
  std::shared_ptr<Object>& Slot(std::size_t index) noexcept {
    return const_cast<std::shared_ptr<Object>&>(*record::detail::ChildSlot<T>(*this, index));
  }

  // The next non-null child from child number `index` on, which moves past it.
  std::shared_ptr<Object> NextChild(std::size_t& index) const noexcept {
    while (index < record::detail::ChildCount<T>) {
      std::shared_ptr<Object> const& child = *record::detail::ChildSlot<T>(*this, index++);
      if (child) {
        return child;
      }
    }
    return nullptr;
  }
};

}  // namespace ryx::object

namespace ryx::type {

template <class T>
struct Name<object::Record<T>> {
  static constexpr char const* Value = object::record::DescriptionOf<T>.typeName;
};

}  // namespace ryx::type
