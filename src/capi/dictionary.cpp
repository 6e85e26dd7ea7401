// The C functions of dictionaries. Keys become std::string; a null key makes
// that conversion throw the standard library's std::logic_error, which each
// function answers as its failure.
#include <ryx/capi/convert.hpp>
#include <ryx/object.h>
#include <ryx/object/dictionary.hpp>

#include "capi/detail/container_call.hpp"
#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstdarg>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

using ryx::object::Convert;
using ryx::object::Object;
using DictionaryClass = ryx::object::Dictionary<ryx::object::Object>;
namespace detail = ryx::object::capi::detail;

extern "C" uint32_t RyxObjectDictType(void) noexcept {
  return Object::TypeIdOf<DictionaryClass>().GetValue();
}

extern "C" bool RyxObjectDictInstanceOf(RyxObject* object) noexcept {
  return object != nullptr && detail::SlotOf(object)->Is<DictionaryClass>();
}

extern "C" RyxObject* RyxObjectDictCreatePairs(char const* key, ...) noexcept {
  std::va_list arguments;
  va_start(arguments, key);
  RyxObject* created = nullptr;
  try {
    DictionaryClass::Properties properties;
    for (; key != nullptr; key = va_arg(arguments, char const*)) {
      RyxObject* const handle = va_arg(arguments, RyxObject*);
      if (handle == nullptr) {
        throw std::invalid_argument("Must provide key/object pairs");
      }
      // Taken out of the handle first: it is consumed whatever follows.
      std::shared_ptr<Object> object = Convert(handle);
      if (!properties.try_emplace(std::string(key), std::move(object)).second) {
        throw std::invalid_argument("Dictionary keys must be unique");
      }
    }
    std::shared_ptr<Object> dictionary = std::make_shared<DictionaryClass>(std::move(properties));
    created = Convert(std::move(dictionary));
  } catch (...) {
    detail::ReportCurrentException(__func__, "failed to create the RYX dictionary");
  }
  va_end(arguments);
  return created;
}

extern "C" size_t RyxObjectDictSize(RyxObject* dictionary) noexcept {
  return detail::ReadContainer<DictionaryClass>(
      __func__, dictionary, size_t{0}, [](DictionaryClass const& d) { return d.Size(); });
}

extern "C" bool RyxObjectDictEmpty(RyxObject* dictionary) noexcept {
  return detail::ReadContainer<DictionaryClass>(
      __func__, dictionary, false, [](DictionaryClass const& d) { return d.Empty(); });
}

extern "C" bool RyxObjectDictContainsKey(RyxObject* dictionary, char const* key) noexcept {
  if (key == nullptr) {
    return false;
  }
  return detail::ReadContainer<DictionaryClass>(
      __func__, dictionary, false, [key, function = __func__](DictionaryClass const& d) {
        try {
          return d.Contains(key);
        } catch (...) {
          // Only the key's copy can fail, for want of memory.
          detail::ReportCurrentException(function,
                                         "failed to look up the key in the RYX object dictionary");
          return false;
        }
      });
}

extern "C" bool RyxObjectDictContainsObject(RyxObject* dictionary, RyxObject* object) noexcept {
  if (object == nullptr) {
    return false;
  }
  Object const* const wanted = detail::SlotOf(object).get();
  return detail::ReadContainer<DictionaryClass>(
      __func__, dictionary, false,
      [wanted](DictionaryClass const& d) { return d.ContainsObject(wanted); });
}

extern "C" RyxObject* RyxObjectDictPeek(RyxObject* dictionary, char const* key) noexcept {
  std::shared_ptr<Object> const held = detail::QuietContainer<DictionaryClass>(dictionary);
  if (!held) {
    return nullptr;
  }
  try {
    std::shared_ptr<Object>* const slot = held->As<DictionaryClass>().GetSlot(std::string(key));
    return slot != nullptr ? detail::HandleOf(*slot) : nullptr;
  } catch (...) {
    detail::ReportCurrentException(__func__, "could not get array object");
    return nullptr;
  }
}

extern "C" RyxObjectStatus RyxObjectDictReserve(RyxObject* dictionary, size_t capacity) noexcept {
  return detail::CallOnContainer<DictionaryClass>(
      __func__, "failed to reserve memory for the RYX object dictionary", dictionary,
      RyxObjectStatusFailure, [capacity](DictionaryClass& d) { d.Reserve(capacity); });
}

extern "C" RyxObjectStatus RyxObjectDictClear(RyxObject* dictionary) noexcept {
  // Clear cannot throw: no failure message exists for it.
  return detail::CallOnContainer<DictionaryClass>(__func__, "", dictionary, RyxObjectStatusFailure,
                                                  [](DictionaryClass& d) { d.Clear(); });
}

extern "C" RyxObjectStatus RyxObjectDictErase(RyxObject* dictionary, char const* key) noexcept {
  return detail::CallOnContainer<DictionaryClass>(
      __func__, "failed to erase the RYX object from the dictionary", dictionary,
      RyxObjectStatusFailure, [key](DictionaryClass& d) { d.Pop(std::string(key)); });
}

// The object handle is consumed first, then the key converted, then the
// value stored; any failure among them is answered the same way.
extern "C" RyxObjectStatus RyxObjectDictSetObject(RyxObject* dictionary, char const* key,
                                                  RyxObject* object) noexcept {
  return detail::CallOnContainer<DictionaryClass>(
      __func__, "could not set array object", dictionary, RyxObjectStatusOutOfRange,
      [key, object](DictionaryClass& d) {
        std::shared_ptr<Object> value = Convert(object);
        d.Assign(std::string(key), std::move(value));
      });
}

extern "C" RyxObjectStatus RyxObjectDictInsertObject(RyxObject* dictionary, char const* key,
                                                     RyxObject* object) noexcept {
  return detail::CallOnContainer<DictionaryClass>(
      __func__, "could not insert array object", dictionary, RyxObjectStatusOutOfRange,
      [key, object](DictionaryClass& d) {
        std::shared_ptr<Object> value = Convert(object);
        d.Insert(std::string(key), std::move(value));
      });
}

extern "C" RyxObject* RyxObjectDictPopObject(RyxObject* dictionary, char const* key) noexcept {
  std::shared_ptr<Object> const held = detail::QuietContainer<DictionaryClass>(dictionary);
  if (!held) {
    return nullptr;
  }
  try {
    return Convert(held->As<DictionaryClass>().Pop(std::string(key)));
  } catch (...) {
    detail::ReportCurrentException(__func__, "could not get array object");
    return nullptr;
  }
}
