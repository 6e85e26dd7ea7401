// detail::PendingChildren: the children the direct JSON readers (typed and
// plain) have finished, waiting for the container being read around them.
//
// The readers parse without recursion, so a container's children arrive
// before the container is complete. Each container remembers where its
// children start (a mark) and takes them all when it ends, in document
// order: the elements into a list sized to them exactly, the entries into a
// map with room for all of them, inserted in order so that the first of
// repeated keys stays (as cereal's archive fills a dictionary, which gives
// the same iteration order).
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "object/serialize/detail/kinds.hpp"

namespace ryx::object::detail {

class PendingChildren {
 public:
  std::size_t ElementMark() const noexcept { return elements.size(); }
  std::size_t EntryMark() const noexcept { return entries.size(); }

  void AddElement(std::shared_ptr<Object> value) { elements.push_back(std::move(value)); }

  // Opens an entry; its value follows with SetLastValue.
  void AddKey(std::string key) { entries.emplace_back(std::move(key), nullptr); }
  void SetLastValue(std::shared_ptr<Object> value) { entries.back().second = std::move(value); }
  std::string const& KeyAt(std::size_t entry) const { return entries[entry].first; }

  ArrayKind::Objects TakeElements(std::size_t mark) {
    auto const first = elements.begin() + static_cast<std::ptrdiff_t>(mark);
    ArrayKind::Objects objects(std::make_move_iterator(first),
                               std::make_move_iterator(elements.end()));
    elements.erase(first, elements.end());
    return objects;
  }

  DictionaryKind::Properties TakeEntries(std::size_t mark) {
    auto const first = entries.begin() + static_cast<std::ptrdiff_t>(mark);
    DictionaryKind::Properties properties;
    properties.reserve(static_cast<std::size_t>(entries.end() - first));
    for (auto entry = first; entry != entries.end(); ++entry) {
      properties.try_emplace(std::move(entry->first), std::move(entry->second));
    }
    entries.erase(first, entries.end());
    return properties;
  }

  void DropEntries(std::size_t mark) {
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(mark), entries.end());
  }

 private:
  std::vector<std::shared_ptr<Object>> elements;
  std::vector<std::pair<std::string, std::shared_ptr<Object>>> entries;
};

}  // namespace ryx::object::detail
