// <ryx/object.h>, <ryx/object/serialize.h> and <ryx/logging.h> must compile as
// C++ on their own.
#include <ryx/logging.h>
#include <ryx/object.h>
#include <ryx/object/serialize.h>

#include <type_traits>

static_assert(noexcept(RyxObjectRelease(nullptr)), "the C functions never throw");
static_assert(noexcept(RyxObjectLoad(RyxObjectFormJson, nullptr, 0, nullptr)));
static_assert(std::is_same_v<decltype(RyxObjectInt32Get(nullptr, nullptr)), RyxObjectStatus>);
