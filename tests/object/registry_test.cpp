#include <ryx/object.hpp>
#include <ryx/type/registry/detail/scoped.hpp>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <iterator>
#include <sstream>

namespace {

using namespace ryx::object;
using ryx::hash::MurmurThree32;

char const* const KindNames[] = {
    "ryx.object.Bool",         "ryx.object.Int8",       "ryx.object.Int16",  "ryx.object.Int32",
    "ryx.object.Int64",        "ryx.object.UInt8",      "ryx.object.UInt16", "ryx.object.UInt32",
    "ryx.object.UInt64",       "ryx.object.Float",      "ryx.object.Double", "ryx.object.String",
    "ryx.object.Array",        "ryx.object.Dictionary", "ryx.object.Enum",   "ryx.object.Pointer",
    "ryx.object.ConstPointer",
};

TEST(Registry, HoldsExactlyTheLibraryKindsEachNamedAndMakingAFreshEmptyDefaultValue) {
  EXPECT_EQ(registry::Get().GetMap()->size(), std::size(KindNames));
  for (char const* name : KindNames) {
    SCOPED_TRACE(name);
    MurmurThree32 const id = MurmurThree32::MakeData(name);
    EXPECT_STREQ(Object::TypeName(id), name);
    auto const made = Object::Make(id);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->GetType(), id);
    // Fresh values, containers too, walk as empty and report the empty schema.
    EXPECT_TRUE(begin(*made) == end(*made) && cbegin(*made) == cend(*made));
    EXPECT_EQ(made->GetRequired(), Required());
    EXPECT_NE(Object::Make(id), made);
    EXPECT_EQ(Object::GetConstructFunction(id)()->GetType(), id);
  }
}

TEST(Registry, AnswersUnknownIdsWithEmptyResults) {
  MurmurThree32 const unknown = MurmurThree32::MakeData("no.such.Type");
  EXPECT_EQ(Object::TypeName(unknown), nullptr);
  EXPECT_EQ(Object::Make(unknown), nullptr);
  EXPECT_FALSE(Object::GetConstructFunction(unknown));
  SaveFunctions const save = Object::GetSaveFunctions(unknown);
  EXPECT_FALSE(std::get<3>(save));
  // Printed, each function by its form.
  LoadFunctions const known = Object::GetLoadFunctions(Object::TypeIdOf<Int32>());
  LoadFunctions const someForms(std::get<0>(known), nullptr, std::get<2>(known));
  std::ostringstream os;
  os << save << ' ' << someForms;
  EXPECT_EQ(os.str(),
            "{\"xml\":false,\"json\":false,\"binary\":false} "
            "{\"xml\":true,\"json\":false,\"binary\":true}");
}

// A scoped registration lasts as long as its object; deregistering an absent
// id does nothing.
TEST(Registry, KeepsTheFirstRecordOfAnIdUntilItIsDeregistered) {
  registry::Registry local;
  MurmurThree32 const id = Object::TypeIdOf<Int32>();
  {
    ryx::type::registry::detail::Scoped<Int32, registry::Registry> const scoped(local);
    auto const makeBool = [] { return std::shared_ptr<Object>(std::make_shared<Bool>(true)); };
    registry::Info const& kept = local.Register(registry::Info(id, "second", makeBool, {}, {}));
    EXPECT_STREQ(kept.GetTypeName(), "ryx.object.Int32");
    EXPECT_TRUE(kept.GetConstructFunction()()->Is<Int32>());
    EXPECT_EQ(local.GetMap()->size(), 1u);
  }
  EXPECT_TRUE(local.GetMap()->empty());
  local.Deregister(id);
  EXPECT_TRUE(local.GetMap()->empty());
}

TEST(Registry, ALockObjectBlocksOtherUsersUntilItIsDestroyed) {
  std::future<char const*> name;
  {
    auto const lock = registry::Get().GetMap();
    name =
        std::async(std::launch::async, [] { return Object::TypeName(Object::TypeIdOf<Int32>()); });
    EXPECT_EQ(name.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
  }
  EXPECT_STREQ(name.get(), "ryx.object.Int32");
}

}  // namespace
