// The C functions of the eleven boolean and numeric kinds, written once as a
// class template and stamped out per kind from one table.
#include <ryx/object.h>
#include <ryx/object/bool.hpp>
#include <ryx/object/double.hpp>
#include <ryx/object/float.hpp>
#include <ryx/object/int16.hpp>
#include <ryx/object/int32.hpp>
#include <ryx/object/int64.hpp>
#include <ryx/object/int8.hpp>
#include <ryx/object/uint16.hpp>
#include <ryx/object/uint32.hpp>
#include <ryx/object/uint64.hpp>
#include <ryx/object/uint8.hpp>

#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstdint>
#include <memory>

namespace ryx::object::capi {

namespace {

using detail::ReportIncorrectType;
using detail::ReportNullParameter;
using detail::SlotOf;

// The C value type names the value class: int32_t is int, int64_t is long...
template <class Value>
class PrimitiveFunctions {
 public:
  using Class = Primitive<Value, Object>;

  static constexpr std::uint32_t Type() noexcept { return Object::TypeIdOf<Class>().GetValue(); }

  static bool InstanceOf(RyxObject const* object) noexcept {
    return object != nullptr && SlotOf(object)->Is<Class>();
  }

  static RyxObject* Create(char const* function, char const* action, Value value) noexcept {
    try {
      return detail::MakeHandle(std::make_shared<Class>(value));
    } catch (...) {
      detail::ReportCurrentException(function, action);
      return nullptr;
    }
  }

  static RyxObjectStatus Set(char const* function, RyxObject* object, Value value) noexcept {
    if (object == nullptr) {
      return ReportNullParameter(function, "object");
    }
    Object& target = *SlotOf(object);
    if (!target.Is<Class>()) {
      return ReportIncorrectType(function, Object::TypeIdOf<Class>(), target);
    }
    target.As<Class>().Set(value);
    return RyxObjectStatusSuccess;
  }

  static RyxObjectStatus Get(char const* function, RyxObject const* object, Value* value) noexcept {
    if (object == nullptr) {
      return ReportNullParameter(function, "object");
    }
    return Read(function, *SlotOf(object), value);
  }

  static RyxObjectStatus Convert(char const* function, RyxObject* object, Value* value) noexcept {
    if (object == nullptr) {
      return ReportNullParameter(function, "object");
    }
    // Consumed from here on, whatever the outcome; the value may die on return.
    std::shared_ptr<Object const> const held = detail::Consume(object);
    return Read(function, *held, value);
  }

 private:
  static RyxObjectStatus Read(char const* function, Object const& source, Value* value) noexcept {
    if (value == nullptr) {
      return ReportNullParameter(function, "value");
    }
    if (!source.Is<Class>()) {
      return ReportIncorrectType(function, Object::TypeIdOf<Class>(), source);
    }
    *value = source.As<Class>().Get();
    return RyxObjectStatusSuccess;
  }
};

}  // namespace

}  // namespace ryx::object::capi

// Kind, C value type, words of the create failure message.
#define RYX_CAPI_PRIMITIVES(X)                           \
  X(Bool, bool, "the RYX boolean")                       \
  X(Int8, int8_t, "the RYX 8-bit integer")               \
  X(Int16, int16_t, "the RYX 16-bit integer")            \
  X(Int32, int32_t, "the RYX 32-bit integer")            \
  X(Int64, int64_t, "the RYX 64-bit integer")            \
  X(UInt8, uint8_t, "the RYX 8-bit unsigned integer")    \
  X(UInt16, uint16_t, "the RYX 16-bit unsigned integer") \
  X(UInt32, uint32_t, "the RYX 32-bit unsigned integer") \
  X(UInt64, uint64_t, "the RYX 64-bit unsigned integer") \
  X(Float, float, "the RYX float")                       \
  X(Double, double, "the RYX double")

// __func__ is the exported name each message starts with.
#define RYX_CAPI_DEFINE_PRIMITIVE(Kind, CType, Words)                                              \
  extern "C" uint32_t RyxObject##Kind##Type(void) noexcept {                                       \
    return ryx::object::capi::PrimitiveFunctions<CType>::Type();                                   \
  }                                                                                                \
  extern "C" bool RyxObject##Kind##InstanceOf(RyxObject const* object) noexcept {                  \
    return ryx::object::capi::PrimitiveFunctions<CType>::InstanceOf(object);                       \
  }                                                                                                \
  extern "C" RyxObject* RyxObject##Kind##Create(CType value) noexcept {                            \
    return ryx::object::capi::PrimitiveFunctions<CType>::Create(__func__,                          \
                                                                "failed to create " Words, value); \
  }                                                                                                \
  extern "C" RyxObjectStatus RyxObject##Kind##Set(RyxObject* object, CType value) noexcept {       \
    return ryx::object::capi::PrimitiveFunctions<CType>::Set(__func__, object, value);             \
  }                                                                                                \
  extern "C" RyxObjectStatus RyxObject##Kind##Get(RyxObject const* object,                         \
                                                  CType* value) noexcept {                         \
    return ryx::object::capi::PrimitiveFunctions<CType>::Get(__func__, object, value);             \
  }                                                                                                \
  extern "C" RyxObjectStatus RyxObject##Kind##Convert(RyxObject* object, CType* value) noexcept {  \
    return ryx::object::capi::PrimitiveFunctions<CType>::Convert(__func__, object, value);         \
  }

RYX_CAPI_PRIMITIVES(RYX_CAPI_DEFINE_PRIMITIVE)
