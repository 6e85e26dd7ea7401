// Symbol visibility of the object library: only what carries
// RYX_OBJECT_EXPORT leaves libryx_object.so.
#pragma once

#define RYX_OBJECT_EXPORT __attribute__((visibility("default")))
