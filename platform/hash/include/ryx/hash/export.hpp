// Symbol visibility of the hash library.
#pragma once

#define RYX_HASH_EXPORT __attribute__((visibility("default")))
