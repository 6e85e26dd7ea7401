// Saving and loading values from C: the C++ To... and From... functions behind
// the checks and the one-message failure reports of the C interface.
#include <ryx/object.h>
#include <ryx/object/serialize.h>
#include <ryx/object/serialize/binary.hpp>
#include <ryx/object/required_text.hpp>
#include <ryx/object/serialize/json.hpp>
#include <ryx/object/serialize/plain_json.hpp>
#include <ryx/object/serialize/xml.hpp>

#include "capi/detail/document_call.hpp"
#include "capi/detail/handle.hpp"
#include "capi/detail/report.hpp"

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace {

namespace detail = ryx::object::capi::detail;
using ryx::object::Object;

// A C caller may pass any int as a form, but a C++ value of the enumeration
// outside its enumerators' range must not even be read: the number is taken
// from its bytes instead.
int FormNumber(RyxObjectForm const& form) noexcept {
  static_assert(sizeof(RyxObjectForm) == sizeof(int));
  int number = 0;
  std::memcpy(&number, &form, sizeof number);
  return number;
}

// Checks the form first, logging an unknown one; answers
// RyxObjectStatusSuccess for a known one.
RyxObjectStatus CheckForm(char const* function, RyxObjectForm const& form) noexcept {
  int const number = FormNumber(form);
  if (number >= RyxObjectFormJson && number <= RyxObjectFormPlainJsonCompact) {
    return RyxObjectStatusSuccess;
  }
  detail::Report("%0%: the form parameter was not a RYX form: %1%", function, number);
  return RyxObjectStatusInvalidParameter;
}

std::string SaveAs(RyxObjectForm form, std::shared_ptr<Object const> const& value) {
  switch (form) {
    case RyxObjectFormJson:
      return ryx::object::ToJson(value);
    case RyxObjectFormXml:
      return ryx::object::ToXml(value);
    case RyxObjectFormPlainJson:
      return ryx::object::ToPlainJson(value);
    case RyxObjectFormPlainJsonCompact:
      return ryx::object::ToPlainJson(value, ryx::object::JsonLayout::Compact);
    case RyxObjectFormBinary:
      break;
  }
  return ryx::object::ToBinary(value);
}

std::shared_ptr<Object> LoadAs(RyxObjectForm form, std::string_view document) {
  switch (form) {
    case RyxObjectFormJson:
      return ryx::object::FromJson(document);
    case RyxObjectFormXml:
      return ryx::object::FromXml(document);
    case RyxObjectFormPlainJson:
    case RyxObjectFormPlainJsonCompact:
      return ryx::object::FromPlainJson(document);
    case RyxObjectFormBinary:
      break;
  }
  return ryx::object::FromBinary(document);
}

}  // namespace

extern "C" RyxObjectStatus RyxObjectSave(RyxObject const* object, RyxObjectForm form, char** data,
                                         size_t* size) noexcept {
  if (data == nullptr) {
    return detail::ReportNullParameter(__func__, "data");
  }
  if (size == nullptr) {
    return detail::ReportNullParameter(__func__, "size");
  }
  if (RyxObjectStatus const status = CheckForm(__func__, form); status != RyxObjectStatusSuccess) {
    return status;
  }
  return detail::CallReporting(__func__, "failed to save the RYX object", [&] {
    detail::HandOut(SaveAs(form, detail::ValueOrNull(object)), data, size);
  });
}

extern "C" RyxObjectStatus RyxObjectLoad(RyxObjectForm form, char const* data, size_t size,
                                         RyxObject** object) noexcept {
  if (data == nullptr) {
    return detail::ReportNullParameter(__func__, "data");
  }
  if (object == nullptr) {
    return detail::ReportNullParameter(__func__, "object");
  }
  if (RyxObjectStatus const status = CheckForm(__func__, form); status != RyxObjectStatusSuccess) {
    return status;
  }
  return detail::CallReporting(__func__, "failed to load the RYX object", [&] {
    auto value = LoadAs(form, std::string_view(data, size));
    *object = value ? detail::MakeHandle(std::move(value)) : nullptr;
  });
}

extern "C" RyxObjectStatus RyxObjectLoadPlainJson(char const* data, size_t size,
                                                  char const* schema,
                                                  RyxObject** object) noexcept {
  if (data == nullptr) {
    return detail::ReportNullParameter(__func__, "data");
  }
  if (object == nullptr) {
    return detail::ReportNullParameter(__func__, "object");
  }
  ryx::object::Required required;
  if (schema != nullptr) {
    RyxObjectStatus const status =
        detail::CallReporting(__func__, "the schema parameter was not a RYX schema",
                              [&] { required = ryx::object::ParseRequired(schema); });
    if (status != RyxObjectStatusSuccess) {
      return status == RyxObjectStatusFailure ? RyxObjectStatusInvalidParameter : status;
    }
  }
  return detail::CallReporting(__func__, "failed to load the RYX object", [&] {
    auto value = ryx::object::FromPlainJson(std::string_view(data, size), required);
    *object = value ? detail::MakeHandle(std::move(value)) : nullptr;
  });
}
