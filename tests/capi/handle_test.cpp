// Convert and Peek, the C++ side's way in and out of C handles.
#include "support.hpp"

#include <ryx/capi/convert.hpp>
#include <ryx/capi/peek.hpp>

#include <memory>
#include <stdexcept>

namespace {

using namespace ryx::object;
using ryx::object::testing::MessageOf;

TEST(Handles, ConvertHandsAValueOverAndBackAndPeekLendsIt) {
  std::shared_ptr<Object> const value = std::make_shared<Int32>(3);
  std::shared_ptr<Object const> const constant = value;
  RyxObject* const handle = Convert(value);
  RyxObject const* const constHandle = Convert(constant);
  EXPECT_EQ(&Peek(handle), value.get());
  EXPECT_EQ(&Peek(constHandle), value.get());
  EXPECT_EQ(value.use_count(), 4);
  EXPECT_EQ(Convert(handle), value);  // each frees its handle
  EXPECT_EQ(Convert(constHandle), constant);
  EXPECT_EQ(value.use_count(), 2);
  EXPECT_EQ(&Peek(value), &value);
  EXPECT_EQ(&Peek(constant), &constant);
}

TEST(Handles, ConvertAndPeekRefuseNull) {
  void (*const calls[])() = {
      [] { Convert(std::shared_ptr<Object>()); },
      [] { Convert(std::shared_ptr<Object const>()); },
      [] { Convert(static_cast<RyxObject*>(nullptr)); },
      [] { Convert(static_cast<RyxObject const*>(nullptr)); },
      [] { Peek(std::shared_ptr<Object>()); },
      [] { Peek(std::shared_ptr<Object const>()); },
      [] { Peek(static_cast<RyxObject*>(nullptr)); },
      [] { Peek(static_cast<RyxObject const*>(nullptr)); },
  };
  for (auto const call : calls) {
    EXPECT_EQ(MessageOf<std::invalid_argument>(call), "The 'object' parameter was a NULL pointer");
  }
}

}  // namespace
