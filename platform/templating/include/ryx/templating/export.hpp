// Symbol visibility of the templating library.
#pragma once

#define RYX_TEMPLATING_EXPORT __attribute__((visibility("default")))
