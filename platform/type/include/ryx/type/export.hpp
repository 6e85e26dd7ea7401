// Symbol visibility of the type library.
#pragma once

#define RYX_TYPE_EXPORT __attribute__((visibility("default")))
