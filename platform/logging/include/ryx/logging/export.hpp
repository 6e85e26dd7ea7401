// Symbol visibility of the logging library.
#pragma once

#define RYX_LOGGING_EXPORT __attribute__((visibility("default")))
// Inline helpers each user instantiates for itself; kept out of the
// users' exported symbols.
#define RYX_LOGGING_LOCAL __attribute__((visibility("hidden")))
