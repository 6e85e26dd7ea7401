// The C functions of enumerators. C callers see one enumeration,
// enumeration::Dummy, with 16-bit unsigned values.
#include <ryx/capi/convert.hpp>
#include <ryx/object.h>
#include <ryx/object/enum.hpp>
#include <ryx/object/enum_dummy.hpp>

#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstdint>
#include <memory>

using ryx::object::Object;
using ryx::object::enumeration::Dummy;
using EnumClass = ryx::object::Enum<ryx::object::Object>;
namespace detail = ryx::object::capi::detail;

namespace {

// The reading steps of Get and Convert once the handle is known non-null.
RyxObjectStatus ReadValue(char const* function, Object const& source, uint16_t* value) noexcept {
  if (!source.Is<EnumClass>()) {
    return detail::ReportIncorrectType(function, Object::TypeIdOf<EnumClass>(), source);
  }
  try {
    *value = static_cast<uint16_t>(source.As<EnumClass>().GetValue<Dummy>());
    return RyxObjectStatusSuccess;
  } catch (...) {
    detail::ReportCurrentException(function, "failed to get the RYX enumerator value");
    return RyxObjectStatusFailure;
  }
}

}  // namespace

extern "C" uint32_t RyxObjectEnumType(void) noexcept {
  return Object::TypeIdOf<EnumClass>().GetValue();
}

extern "C" bool RyxObjectEnumInstanceOf(RyxObject* object) noexcept {
  return object != nullptr && detail::SlotOf(object)->Is<EnumClass>();
}

extern "C" RyxObject* RyxObjectEnumCreate(uint16_t value) noexcept {
  try {
    std::shared_ptr<Object> enumerator = std::make_shared<EnumClass>(Dummy{value});
    return ryx::object::Convert(std::move(enumerator));
  } catch (...) {
    detail::ReportCurrentException(__func__, "failed to create the RYX enumerator");
    return nullptr;
  }
}

extern "C" RyxObjectStatus RyxObjectEnumSetValue(RyxObject* object, uint16_t value) noexcept {
  if (object == nullptr) {
    return detail::ReportNullParameter(__func__, "object");
  }
  std::shared_ptr<Object> const held = detail::SlotOf(object);
  if (!held->Is<EnumClass>()) {
    return detail::ReportIncorrectType(__func__, Object::TypeIdOf<EnumClass>(), *held);
  }
  try {
    held->As<EnumClass>().SetValue(Dummy{value});
    return RyxObjectStatusSuccess;
  } catch (...) {
    detail::ReportCurrentException(__func__, "failed to set the RYX object");
    return RyxObjectStatusFailure;
  }
}

extern "C" RyxObjectStatus RyxObjectEnumGetValue(RyxObject* object, uint16_t* value) noexcept {
  if (value == nullptr) {
    return detail::ReportNullParameter(__func__, "value");
  }
  if (object == nullptr) {
    return detail::ReportNullParameter(__func__, "object");
  }
  return ReadValue(__func__, *detail::SlotOf(object), value);
}

extern "C" RyxObjectStatus RyxObjectEnumConvertValue(RyxObject* object, uint16_t* value) noexcept {
  if (object == nullptr) {
    return detail::ReportNullParameter(__func__, "object");
  }
  // Consumed from here on, whatever the outcome; the value may die on return.
  std::shared_ptr<Object const> const held = detail::Consume(object);
  if (value == nullptr) {
    return detail::ReportNullParameter(__func__, "value");
  }
  return ReadValue(__func__, *held, value);
}
