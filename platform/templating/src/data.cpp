#include <ryx/templating/serialize/archive/output/data.hpp>

#include <stdexcept>
#include <utility>

namespace ryx::templating::serialize::archive::output {

Data::Data() : cereal::OutputArchive<Data>(this), root(mstch::map()) {
  open.push_back(Open{&root, false});
}

std::string Data::TakeName() {
  std::string name = GetNextName();
  nextName = nullptr;
  return name;
}

void Data::StartNode() {
  Open const parent = open.back();
  mstch::node* child = nullptr;
  if (parent.isArray) {
    auto& items = boost::get<mstch::array>(*parent.node);
    child = &items.emplace_back(mstch::map());
  } else {
    auto& entries = boost::get<mstch::map>(*parent.node);
    child = &entries.insert_or_assign(TakeName(), mstch::map()).first->second;
  }
  open.push_back(Open{child, false});
}

void Data::MakeArray(std::size_t size) {
  if (open.size() < 2) {
    throw std::logic_error("Data::MakeArray: the root cannot become an array");
  }
  mstch::array items;
  items.reserve(size);
  *open.back().node = std::move(items);
  open.back().isArray = true;
}

void Data::FinishNode() {
  if (open.size() < 2) {
    throw std::logic_error("Data::FinishNode: no node is open");
  }
  open.pop_back();
}

void Data::Place(mstch::node value) {
  Open const& top = open.back();
  if (top.isArray) {
    boost::get<mstch::array>(*top.node).push_back(std::move(value));
  } else {
    boost::get<mstch::map>(*top.node).insert_or_assign(TakeName(), std::move(value));
  }
}

}  // namespace ryx::templating::serialize::archive::output
