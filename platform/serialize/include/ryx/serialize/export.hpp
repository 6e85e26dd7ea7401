// Symbol visibility of the serialize library.
#pragma once

#define RYX_SERIALIZE_EXPORT __attribute__((visibility("default")))
