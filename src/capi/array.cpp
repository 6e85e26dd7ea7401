// The C functions of arrays.
#include <ryx/capi/convert.hpp>
#include <ryx/object.h>
#include <ryx/object/array.hpp>

#include "capi/detail/container_call.hpp"
#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstdarg>
#include <memory>
#include <stdexcept>
#include <utility>

using ryx::object::Convert;
using ryx::object::Object;
using ArrayClass = ryx::object::Array<ryx::object::Object>;
namespace detail = ryx::object::capi::detail;

extern "C" uint32_t RyxObjectArrayType(void) noexcept {
  return Object::TypeIdOf<ArrayClass>().GetValue();
}

extern "C" bool RyxObjectArrayInstanceOf(RyxObject* object) noexcept {
  return object != nullptr && detail::SlotOf(object)->Is<ArrayClass>();
}

extern "C" RyxObject* RyxObjectArrayCreateObjects(RyxObject* first, ...) noexcept {
  std::va_list arguments;
  va_start(arguments, first);
  RyxObject* created = nullptr;
  try {
    ArrayClass::Objects objects;
    for (RyxObject* handle = first; handle != nullptr; handle = va_arg(arguments, RyxObject*)) {
      // Taken out of the handle first, so a failing push_back still releases it.
      std::shared_ptr<Object> object = Convert(handle);
      objects.push_back(std::move(object));
    }
    std::shared_ptr<Object> array = std::make_shared<ArrayClass>(std::move(objects));
    created = Convert(std::move(array));
  } catch (...) {
    detail::ReportCurrentException(__func__, "failed to create the RYX array");
  }
  va_end(arguments);
  return created;
}

extern "C" size_t RyxObjectArraySize(RyxObject* array) noexcept {
  return detail::ReadContainer<ArrayClass>(__func__, array, size_t{0},
                                           [](ArrayClass const& a) { return a.Size(); });
}

extern "C" size_t RyxObjectArrayCapacity(RyxObject* array) noexcept {
  return detail::ReadContainer<ArrayClass>(__func__, array, size_t{0},
                                           [](ArrayClass const& a) { return a.Capacity(); });
}

extern "C" bool RyxObjectArrayEmpty(RyxObject* array) noexcept {
  return detail::ReadContainer<ArrayClass>(__func__, array, false,
                                           [](ArrayClass const& a) { return a.Empty(); });
}

extern "C" bool RyxObjectArrayContains(RyxObject* array, RyxObject* object) noexcept {
  if (object == nullptr) {
    return false;
  }
  Object const* const wanted = detail::SlotOf(object).get();
  return detail::ReadContainer<ArrayClass>(
      __func__, array, false, [wanted](ArrayClass const& a) { return a.Contains(wanted); });
}

extern "C" RyxObject* RyxObjectArrayPeek(RyxObject* array, size_t index) noexcept {
  std::shared_ptr<Object> const held = detail::QuietContainer<ArrayClass>(array);
  if (!held) {
    return nullptr;
  }
  std::shared_ptr<Object>* const slot = held->As<ArrayClass>().GetSlot(index);
  return slot != nullptr ? detail::HandleOf(*slot) : nullptr;
}

extern "C" RyxObjectStatus RyxObjectArrayReserve(RyxObject* array, size_t capacity) noexcept {
  return detail::CallOnContainer<ArrayClass>(
      __func__, "failed to reserve memory for the RYX object array", array,
      RyxObjectStatusFailure, [capacity](ArrayClass& a) { a.Reserve(capacity); });
}

extern "C" RyxObjectStatus RyxObjectArrayShrink(RyxObject* array) noexcept {
  // Shrink and Clear cannot throw: no failure message exists for them.
  return detail::CallOnContainer<ArrayClass>(__func__, "", array, RyxObjectStatusFailure,
                                             [](ArrayClass& a) { a.Shrink(); });
}

extern "C" RyxObjectStatus RyxObjectArrayClear(RyxObject* array) noexcept {
  return detail::CallOnContainer<ArrayClass>(__func__, "", array, RyxObjectStatusFailure,
                                             [](ArrayClass& a) { a.Clear(); });
}

extern "C" RyxObjectStatus RyxObjectArrayErase(RyxObject* array, size_t index) noexcept {
  return detail::CallOnContainer<ArrayClass>(
      __func__, "failed to erase the RYX object from the array", array, RyxObjectStatusFailure,
      [index](ArrayClass& a) { a.Pop(index); });
}

// The object handle is consumed only once the array handle has passed its
// tests: inside the operation, where a null handle throws like any failure.
extern "C" RyxObjectStatus RyxObjectArraySetObject(RyxObject* array, size_t index,
                                                   RyxObject* object) noexcept {
  return detail::CallOnContainer<ArrayClass>(
      __func__, "could not set array object", array, RyxObjectStatusOutOfRange,
      [index, object](ArrayClass& a) { a.Set(index, Convert(object)); });
}

extern "C" RyxObjectStatus RyxObjectArrayInsertObject(RyxObject* array, size_t index,
                                                      RyxObject* object) noexcept {
  return detail::CallOnContainer<ArrayClass>(
      __func__, "could not insert array object", array, RyxObjectStatusOutOfRange,
      [index, object](ArrayClass& a) { a.Insert(index, {Convert(object)}); });
}

extern "C" RyxObjectStatus RyxObjectArrayAppendObject(RyxObject* array, RyxObject* object) noexcept {
  return detail::CallOnContainer<ArrayClass>(
      __func__, "could not append array object", array, RyxObjectStatusOutOfRange,
      [object](ArrayClass& a) { a.Append(Convert(object)); });
}

extern "C" RyxObjectStatus RyxObjectArrayPrependObject(RyxObject* array,
                                                       RyxObject* object) noexcept {
  return detail::CallOnContainer<ArrayClass>(
      __func__, "could not prepend array object", array, RyxObjectStatusOutOfRange,
      [object](ArrayClass& a) { a.Prepend(Convert(object)); });
}

extern "C" RyxObject* RyxObjectArrayPopObject(RyxObject* array, size_t index) noexcept {
  std::shared_ptr<Object> const held = detail::QuietContainer<ArrayClass>(array);
  if (!held || index >= held->As<ArrayClass>().Size()) {
    return nullptr;
  }
  try {
    return Convert(held->As<ArrayClass>().Pop(index));
  } catch (...) {
    detail::ReportCurrentException(__func__, "could not get array object");
    return nullptr;
  }
}

namespace {

// Pops at one end; `words` name that end in the failure message, which has
// no reason for an exception that is not a std::exception.
template <class Pop>
RyxObject* PopAtEnd(char const* function, char const* words, RyxObject* array, Pop pop) noexcept {
  std::shared_ptr<Object> const held = detail::QuietContainer<ArrayClass>(array);
  if (!held) {
    return nullptr;
  }
  try {
    return Convert(pop(held->As<ArrayClass>()));
  } catch (std::exception const& e) {
    detail::Report("%0%: %1%: %2%", function, words, e.what());
  } catch (...) {
    detail::Report("%0%: %1%", function, words);
  }
  return nullptr;
}

}  // namespace

extern "C" RyxObject* RyxObjectArrayPopBackObject(RyxObject* array) noexcept {
  return PopAtEnd(__func__, "could not pop object at the back of the array", array,
                  [](ArrayClass& a) { return a.PopBack(); });
}

extern "C" RyxObject* RyxObjectArrayPopFrontObject(RyxObject* array) noexcept {
  return PopAtEnd(__func__, "could not pop object at the front of the array", array,
                  [](ArrayClass& a) { return a.PopFront(); });
}
