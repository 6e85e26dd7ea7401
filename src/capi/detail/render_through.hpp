// The work of RyxObjectRender, done inside the library with a renderer that
// the program brings.
//
// mstch comes as a static archive that cannot be linked into a shared
// library, so, like the C++ Render, the C entry point renders with the
// program's own copy of mstch: RyxObjectRender lives in the static library
// libryx_object_render.a, linked into the program, and hands its renderer to
// RenderThrough, which checks the parameters, builds the template data,
// reports failures and hands the text out.
#pragma once

#include <ryx/object.h>
#include <ryx/object/export.hpp>

#include <mstch/mstch.hpp>

#include <cstddef>
#include <string>

namespace ryx::object::capi::detail {

using Renderer = std::string (*)(std::string const& mustache, mstch::node const& data);

RYX_OBJECT_EXPORT RyxObjectStatus RenderThrough(Renderer render, char const* mustache,
                                                RyxObject const* object, char** text,
                                                std::size_t* size) noexcept;

}  // namespace ryx::object::capi::detail
