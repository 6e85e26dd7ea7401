// <ryx/object.h> and <ryx/logging.h> must compile as C++ on their own.
#include <ryx/logging.h>
#include <ryx/object.h>

#include <type_traits>

static_assert(noexcept(RyxObjectRelease(nullptr)), "the C functions never throw");
static_assert(std::is_same_v<decltype(RyxObjectInt32Get(nullptr, nullptr)), RyxObjectStatus>);
