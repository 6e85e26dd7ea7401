#include "box.hpp"

#include <cstdint>
#include <mutex>
#include <type_traits>

namespace test {

namespace {

using namespace ryx::object;

template <class Archive>
void SaveBox(Object const& object, Archive& archive) {
  auto const& box = static_cast<Box const&>(object);
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryOutputArchive>) {
    archive(object.GetType().GetValue());
    Save(archive, box.child);
  } else {
    object.Serialize(archive);
    archive.setNextName("child");
    archive.startNode();
    Save(archive, box.child);
    archive.finishNode();
  }
}

template <class Archive>
void LoadBox(Object& object, Archive& archive) {
  auto& box = static_cast<Box&>(object);
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryInputArchive>) {
    Load(archive, box.child);
  } else {
    object.Serialize(archive);
    archive.setNextName("child");
    archive.startNode();
    Load(archive, box.child);
    archive.finishNode();
  }
}

}  // namespace

void RegisterBox() {
  static std::once_flag once;
  std::call_once(once, [] {
    SaveFunctions save;
    std::get<0>(save) = SaveBox<cereal::XMLOutputArchive>;
    std::get<1>(save) = SaveBox<cereal::JSONOutputArchive>;
    std::get<2>(save) = SaveBox<cereal::PortableBinaryOutputArchive>;
    LoadFunctions load;
    std::get<0>(load) = LoadBox<cereal::XMLInputArchive>;
    std::get<1>(load) = LoadBox<cereal::JSONInputArchive>;
    std::get<2>(load) = LoadBox<cereal::PortableBinaryInputArchive>;
    registry::Get().Register(registry::Info(
        ryx::hash::MurmurThree32::MakeData(BoxName), BoxName,
        [] { return std::make_shared<Box>(); }, save, load));
  });
}

std::shared_ptr<Object const> MakeBoxes(std::size_t levels) {
  std::shared_ptr<Object> value = std::make_shared<Int32>(1);
  for (std::size_t level = 0; level != levels; ++level) {
    auto box = std::make_shared<Box>();
    box->child = std::move(value);
    value = std::move(box);
  }
  return value;
}

}  // namespace test
