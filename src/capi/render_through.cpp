#include "capi/detail/render_through.hpp"

#include <ryx/object/serialize/template_data.hpp>

#include "capi/detail/document_call.hpp"
#include "capi/detail/report.hpp"

namespace ryx::object::capi::detail {

RyxObjectStatus RenderThrough(Renderer render, char const* mustache, RyxObject const* object,
                              char** text, std::size_t* size) noexcept {
  // Messages name the exported C function the program called.
  static constexpr char const* function = "RyxObjectRender";
  if (mustache == nullptr) {
    return ReportNullParameter(function, "mustache");
  }
  if (text == nullptr) {
    return ReportNullParameter(function, "text");
  }
  if (size == nullptr) {
    return ReportNullParameter(function, "size");
  }
  return CallReporting(function, "failed to render the RYX template", [&] {
    HandOut(render(mustache, ToTemplateData(ValueOrNull(object))), text, size);
  });
}

}  // namespace ryx::object::capi::detail
