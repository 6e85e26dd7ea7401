#include <ryx/object.h>
#include <ryx/object/string.hpp>

#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstdlib>
#include <memory>
#include <string>

using ryx::object::Object;
using ryx::object::String;
using ryx::object::capi::detail::ReportIncorrectType;
using ryx::object::capi::detail::ReportNullParameter;
using ryx::object::capi::detail::SlotOf;

namespace {

constexpr ryx::hash::MurmurThree32 StringTypeId = Object::TypeIdOf<String>();

}  // namespace

extern "C" uint32_t RyxObjectStringType(void) noexcept { return StringTypeId.GetValue(); }

extern "C" bool RyxObjectStringInstanceOf(RyxObject* object) noexcept {
  return object != nullptr && SlotOf(object)->Is<String>();
}

extern "C" RyxObject* RyxObjectStringCreate(char const* value) noexcept {
  try {
    // A null `value` is refused by the std::string constructor, whose text is
    // then logged.
    return ryx::object::capi::detail::MakeHandle(std::make_shared<String>(std::string(value)));
  } catch (...) {
    ryx::object::capi::detail::ReportCurrentException(__func__, "failed to create the RYX string");
    return nullptr;
  }
}

extern "C" RyxObjectStatus RyxObjectStringGet(RyxObject* object, char const** value) noexcept {
  if (object == nullptr) {
    return ReportNullParameter(__func__, "object");
  }
  if (value == nullptr) {
    return ReportNullParameter(__func__, "value");
  }
  Object const& source = *SlotOf(object);
  if (!source.Is<String>()) {
    return ReportIncorrectType(__func__, StringTypeId, source);
  }
  *value = source.As<String>().Get().c_str();
  return RyxObjectStatusSuccess;
}

extern "C" RyxObjectStatus RyxObjectStringSet(RyxObject* object, char const* value) noexcept {
  if (object == nullptr) {
    return ReportNullParameter(__func__, "object");
  }
  if (value == nullptr) {
    return ReportNullParameter(__func__, "value");
  }
  Object& target = *SlotOf(object);
  if (!target.Is<String>()) {
    return ReportIncorrectType(__func__, StringTypeId, target);
  }
  try {
    target.As<String>().Set(std::string(value));
  } catch (...) {
    // Only the copy of `value` can fail, for want of memory: answered without
    // a message, the string keeps its characters.
    return RyxObjectStatusAllocationFailure;
  }
  return RyxObjectStatusSuccess;
}

namespace {

// The steps the two consuming reads share: the null test, taking the value
// out of the handle, the test of the output pointer, then the type test.
// Returns the string on success; otherwise null, with `*status` set.
std::shared_ptr<Object const> ConsumeString(char const* function, RyxObject* object,
                                            void const* output, char const* outputName,
                                            RyxObjectStatus* status) noexcept {
  if (object == nullptr) {
    *status = ReportNullParameter(function, "object");
    return nullptr;
  }
  std::shared_ptr<Object const> held = ryx::object::capi::detail::Consume(object);
  if (output == nullptr) {
    *status = ReportNullParameter(function, outputName);
    return nullptr;
  }
  if (!held->Is<String>()) {
    *status = ReportIncorrectType(function, StringTypeId, *held);
    return nullptr;
  }
  return held;
}

}  // namespace

extern "C" RyxObjectStatus RyxObjectStringConvertBuffer(RyxObject* object, char* buffer,
                                                        size_t size) noexcept {
  RyxObjectStatus status = RyxObjectStatusSuccess;
  auto const held = ConsumeString(__func__, object, buffer, "buffer", &status);
  if (held) {
    held->As<String>().Get().copy(buffer, size, 0);
  }
  return status;
}

extern "C" RyxObjectStatus RyxObjectStringConvertAllocate(RyxObject* object,
                                                          char** value) noexcept {
  RyxObjectStatus status = RyxObjectStatusSuccess;
  auto const held = ConsumeString(__func__, object, value, "value", &status);
  if (!held) {
    return status;
  }
  std::string const& text = held->As<String>().Get();
  auto* const block = static_cast<char*>(std::malloc(text.size() + 1));
  if (block == nullptr) {
    return RyxObjectStatusAllocationFailure;
  }
  // All the characters, NULs inside the string included, then the terminator.
  text.copy(block, text.size(), 0);
  block[text.size()] = '\0';
  *value = block;
  return RyxObjectStatusSuccess;
}
