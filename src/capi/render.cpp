// RyxObjectRender, linked into the program from libryx_object_render.a so
// that it renders with the program's own copy of mstch (see
// capi/detail/render_through.hpp).
#include <ryx/object/serialize.h>

#include "capi/detail/render_through.hpp"

#include <mstch/mstch.hpp>

#include <string>

namespace {

std::string RenderWithMstch(std::string const& mustache, mstch::node const& data) {
  return mstch::render(mustache, data);
}

}  // namespace

extern "C" RyxObjectStatus RyxObjectRender(char const* mustache, RyxObject const* object,
                                           char** text, size_t* size) noexcept {
  return ryx::object::capi::detail::RenderThrough(&RenderWithMstch, mustache, object, text, size);
}
