// RYX_OBJECT_DETAIL_ADDRESS_SANITIZER: 1 when AddressSanitizer instruments the
// including file, else 0. Its red zones make every stack frame larger, so the
// stack estimates of the recursive operations depend on it.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define RYX_OBJECT_DETAIL_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define RYX_OBJECT_DETAIL_ADDRESS_SANITIZER 1
#endif
#endif
#ifndef RYX_OBJECT_DETAIL_ADDRESS_SANITIZER
#define RYX_OBJECT_DETAIL_ADDRESS_SANITIZER 0
#endif
