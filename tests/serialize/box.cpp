#include "box.hpp"

#include <cstdint>
#include <limits>
#include <mutex>
#include <type_traits>

namespace test {

namespace {

using namespace ryx::object;

// The child in a node of its own, through Save and Load in every form.
struct SavedChild {
  std::shared_ptr<Object> const& child;
  template <class Archive>
  void save(Archive& archive) const {
    Save(archive, child);
  }
};

struct LoadedChild {
  std::shared_ptr<Object>& child;
  template <class Archive>
  void load(Archive& archive) {
    Load(archive, child);
  }
};

// One template serves every archive: Serialize writes and reads the type
// record in each form.
template <class Archive>
void SaveBox(Object const& object, Archive& archive) {
  object.Serialize(archive);
  archive(cereal::make_nvp("child", SavedChild{static_cast<Box const&>(object).child}));
}

// Staged, so that a failed load leaves the box as it was.
template <class Archive>
void LoadBox(Object& object, Archive& archive) {
  object.Serialize(archive);
  std::shared_ptr<Object> child;
  archive(cereal::make_nvp("child", LoadedChild{child}));
  static_cast<Box&>(object).child = std::move(child);
}

}  // namespace

std::vector<std::shared_ptr<Object const>> ExtremePrimitives() {
  return {std::make_shared<Bool>(false),
          std::make_shared<Int8>(-128),
          std::make_shared<Int16>(-32768),
          std::make_shared<Int32>(std::numeric_limits<int>::min()),
          std::make_shared<Int64>(std::numeric_limits<long>::max()),
          std::make_shared<UInt8>(255),
          std::make_shared<Float>(3.4e38f),
          std::make_shared<Double>(0.1),
          std::make_shared<Double>(-1e-300),
          std::make_shared<Double>(1e-310),
          std::make_shared<Double>(std::numeric_limits<double>::max()),
          // Not strict JSON: the JSON form writes and reads Infinity and NaN.
          std::make_shared<Double>(-std::numeric_limits<double>::infinity()),
          std::make_shared<Float>(std::numeric_limits<float>::infinity()),
          std::make_shared<String>("line\nbreak \xc3\xa9 & x")};
}

std::shared_ptr<Object> Example() {
  using Properties = Dictionary<Object>::Properties;
  auto const record =
      std::make_shared<Dictionary<Object>>(Properties{{"name", std::make_shared<String>("abc")}});
  return std::make_shared<Array<Object>>(
      Array<Object>::Objects{std::make_shared<Int32>(7), record});
}

std::shared_ptr<Array<Object>> EveryKindInContainers() {
  using ryx::hash::MurmurThree32;
  auto const pointer = std::make_shared<Pointer<Object, void>>();
  pointer->Set(std::make_shared<int>(1), MurmurThree32::MakeData("test.Pointee"));
  Required const schema(Object::TypeIdOf<Array<Object>>(), {Required(Object::TypeIdOf<Int32>())});
  auto const typed = std::make_shared<Array<Object>>(
      Required(Object::TypeIdOf<Int32>()), Array<Object>::Objects{std::make_shared<Int32>(1)});
  auto const value = std::make_shared<Dictionary<Object>>(
      Object::TypeIdOf<Dictionary<Object>>(), schema,
      Dictionary<Object>::Properties{{"typed", typed}, {"nested", Example()}});
  auto const all = std::make_shared<Array<Object>>(Array<Object>::Objects{
      value, std::make_shared<Enum<Object>>(ryx::object::enumeration::Dummy{65535}), pointer,
      std::make_shared<Pointer<Object, void const>>(), std::make_shared<Int32>(0)});
  *all->GetSlot(4) = nullptr;
  return all;
}

void RegisterBox() {
  static std::once_flag once;
  std::call_once(once, [] {
    // No template data, so that the tests have a kind without a function.
    SaveFunctions save{SaveBox<cereal::XMLOutputArchive>, SaveBox<cereal::JSONOutputArchive>,
                       SaveBox<cereal::PortableBinaryOutputArchive>, nullptr};
    LoadFunctions load{LoadBox<cereal::XMLInputArchive>, LoadBox<cereal::JSONInputArchive>,
                       LoadBox<cereal::PortableBinaryInputArchive>};
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
