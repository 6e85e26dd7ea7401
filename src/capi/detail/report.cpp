#include "capi/detail/report.hpp"

#include "object/detail/type_name.hpp"

#include <ryx/object/serialize/location.hpp>
#include <ryx/object/serialize/plain_json.hpp>

#include <exception>
#include <string>

namespace ryx::object::capi::detail {

RyxObjectStatus ReportNullParameter(char const* function, char const* parameter) noexcept {
  Report("%0%: the %1% parameter was NULL", function, parameter);
  return RyxObjectStatusInvalidParameter;
}

RyxObjectStatus ReportIncorrectType(char const* function, hash::MurmurThree32 const& expected,
                                    Object const& actual) noexcept {
  Report("%0%: the object parameter was not a %1%: %2%", function,
         object::detail::TypeNameOrNotRegistered(expected),
         object::detail::TypeNameOrNotRegistered(actual.GetType()));
  return RyxObjectStatusIncorrectType;
}

void ReportCurrentException(char const* function, char const* action) noexcept {
  try {
    throw;
  } catch (std::exception const& e) {
    // Where a document failed, unless the message says so itself.
    Location const* const location = FindLocation(e);
    if (location != nullptr && dynamic_cast<PlainJsonError const*>(&e) == nullptr) {
      try {
        std::string const where = FormatLocation(*location);
        if (!where.empty()) {
          Report("%0%: %1%: %2% (%3%)", function, action, e.what(), where);
          return;
        }
      } catch (...) {
        // No memory for the place: the message alone.
      }
    }
    Report("%0%: %1%: %2%", function, action, e.what());
  } catch (...) {
    Report("%0%: %1%: generic exception object", function, action);
  }
}

}  // namespace ryx::object::capi::detail
