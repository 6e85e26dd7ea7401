// ryx::templating::serialize::archive::output::Data: a cereal output archive
// that builds an mstch node tree, the context a mustache template renders.
//
// The root is a map. Named values go into the current map under their names;
// a sequence becomes an array whose items are appended in order. Scalars are
// rendered as the template sees them: booleans as bool nodes, every number as
// its decimal text (8-bit integers as numbers, never as characters; floating
// point as a default-formatted double, 6 significant digits), strings as they
// are.
#pragma once

#include <ryx/templating/export.hpp>

#include <cereal/cereal.hpp>
#include <mstch/mstch.hpp>

#include <cstddef>
#include <sstream>
#include <string>
#include <utility>
#include <type_traits>
#include <vector>

namespace ryx::templating::serialize::archive::output {

class RYX_TEMPLATING_EXPORT Data : public cereal::OutputArchive<Data> {
 public:
  Data();
  Data(Data const&) = delete;
  Data& operator=(Data const&) = delete;

  // The tree built so far.
  mstch::node const& GetRoot() const noexcept { return root; }
  // Moves the finished tree out, sparing a copy of a large tree; the archive
  // must not be used afterwards. Moving a map node allocates (the variant
  // keeps it behind a recursive wrapper), so this may throw std::bad_alloc.
  mstch::node TakeRoot() && { return std::move(root); }

  // The name under which the next value or node goes into the current map.
  // Not copied: it must stay valid until that value or node is placed.
  void SetNextName(char const* name) noexcept { nextName = name; }
  // The pending name, or an empty string when none is pending.
  std::string GetNextName() const { return nextName != nullptr ? nextName : std::string(); }

  // Opens a map as a child of the current node (under the pending name in a
  // map, appended in an array); it becomes the current node.
  void StartNode();
  // Turns the node just opened into an array that will receive `size` items.
  void MakeArray(std::size_t size);
  // Closes the current node. Throws std::logic_error when only the root is open.
  void FinishNode();

  // Stores a scalar in the current node (appended in an array, under the
  // pending name in a map, replacing what was there). boost::bad_get when the
  // current node does not hold the kind the archive recorded for it.
  template <class T>
  void SaveValue(T const& value) {
    Place(Render(value));
  }

 private:
  struct Open {
    mstch::node* node;
    bool isArray;
  };

  static mstch::node Render(bool value) { return value; }
  static mstch::node Render(std::string const& value) { return value; }
  static mstch::node Render(char const* value) { return std::string(value); }
  template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
  static mstch::node Render(T value) {
    // A fresh stream: default flags and precision, whatever the caller's are.
    std::ostringstream text;
    if constexpr (std::is_floating_point_v<T>) {
      text << static_cast<double>(value);
    } else if constexpr (sizeof(T) == 1) {
      text << static_cast<int>(value);
    } else {
      text << value;
    }
    return text.str();
  }

  void Place(mstch::node value);
  // Takes the pending name, leaving none pending.
  std::string TakeName();

  mstch::node root;
  std::vector<Open> open;
  char const* nextName = nullptr;
};

// cereal's hooks: a named value sets the name, a sequence's size makes the
// array, every other type that is not a scalar is a map node of its own.
template <class T>
void prologue(Data&, cereal::NameValuePair<T> const&) {}
template <class T>
void epilogue(Data&, cereal::NameValuePair<T> const&) {}
template <class T>
void prologue(Data&, cereal::SizeTag<T> const&) {}
template <class T>
void epilogue(Data&, cereal::SizeTag<T> const&) {}
template <class T, std::enable_if_t<!std::is_arithmetic_v<T>, int> = 0>
void prologue(Data& archive, T const&) {
  archive.StartNode();
}
template <class T, std::enable_if_t<!std::is_arithmetic_v<T>, int> = 0>
void epilogue(Data& archive, T const&) {
  archive.FinishNode();
}
template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
void prologue(Data&, T const&) {}
template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
void epilogue(Data&, T const&) {}
template <class C, class Traits, class Alloc>
void prologue(Data&, std::basic_string<C, Traits, Alloc> const&) {}
template <class C, class Traits, class Alloc>
void epilogue(Data&, std::basic_string<C, Traits, Alloc> const&) {}

template <class T>
void CEREAL_SAVE_FUNCTION_NAME(Data& archive, cereal::NameValuePair<T> const& value) {
  archive.SetNextName(value.name);
  archive(value.value);
}
template <class T>
void CEREAL_SAVE_FUNCTION_NAME(Data& archive, cereal::SizeTag<T> const& size) {
  archive.MakeArray(static_cast<std::size_t>(size.size));
}
template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
void CEREAL_SAVE_FUNCTION_NAME(Data& archive, T const& value) {
  archive.SaveValue(value);
}
template <class Traits, class Alloc>
void CEREAL_SAVE_FUNCTION_NAME(Data& archive, std::basic_string<char, Traits, Alloc> const& value) {
  archive.SaveValue(std::string(value));
}

}  // namespace ryx::templating::serialize::archive::output
