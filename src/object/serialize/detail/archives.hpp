// The archives of the four forms, for the library's serialization sources.
#pragma once

// Visible by default so that what is instantiated for them can be exported.
#pragma GCC visibility push(default)
#include <ryx/serialize/archive/json.hpp>
#include <ryx/templating/serialize/archive/output/data.hpp>

#include <cereal/archives/portable_binary.hpp>
#include <cereal/archives/xml.hpp>
#pragma GCC visibility pop
