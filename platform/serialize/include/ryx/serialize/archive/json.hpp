// The one way to include cereal's JSON archives.
//
// Before the JSON reader is compiled this header makes every failed check of
// the reader call cereal::archive::ThrowJsonParseError, shares stateless
// allocators (see json_allocators.hpp), and makes the parser iterative, so that a deeply nested document costs heap memory in proportion
// to its size instead of stack. Both settings are macros that change inline
// code, so every translation unit of a program must see the same ones: include
// this header, never <cereal/archives/json.hpp> or rapidjson directly, before
// the JSON archives are used.
#pragma once

#if defined(CEREAL_ARCHIVES_JSON_HPP_)
#error "<cereal/archives/json.hpp> was included before <ryx/serialize/archive/json.hpp>"
#endif
#if defined(RAPIDJSON_RAPIDJSON_H_) || defined(CEREAL_RAPIDJSON_RAPIDJSON_H_)
#error "rapidjson was included before <ryx/serialize/archive/json.hpp>"
#endif

#include <ryx/serialize/archive/json_allocators.hpp>
#include <ryx/serialize/archive/json_parse_error.hpp>

// An expression, so that it fits wherever the reader places its checks.
#define RYX_SERIALIZE_JSON_CHECK(x) \
  ((x) ? static_cast<void>(0) : ::cereal::archive::ThrowJsonParseError(#x))

// Debian's cereal uses the system rapidjson; upstream cereal its own copy with
// prefixed macros. Both are configured the same way.
#define RAPIDJSON_ASSERT_THROWS
#define RAPIDJSON_ASSERT(x) RYX_SERIALIZE_JSON_CHECK(x)
#define RAPIDJSON_PARSE_DEFAULT_FLAGS \
  kParseFullPrecisionFlag | kParseNanAndInfFlag | kParseIterativeFlag
#define RAPIDJSON_NEW(x) ::cereal::archive::detail::NewJsonAllocator<decltype(x)>()
#define RAPIDJSON_DELETE(x) ::cereal::archive::detail::DeleteJsonAllocator(x)
#define CEREAL_RAPIDJSON_ASSERT_THROWS
#define CEREAL_RAPIDJSON_ASSERT(x) RYX_SERIALIZE_JSON_CHECK(x)
#define CEREAL_RAPIDJSON_PARSE_DEFAULT_FLAGS \
  kParseFullPrecisionFlag | kParseNanAndInfFlag | kParseIterativeFlag
#define CEREAL_RAPIDJSON_NEW(x) ::cereal::archive::detail::NewJsonAllocator<decltype(x)>()
#define CEREAL_RAPIDJSON_DELETE(x) ::cereal::archive::detail::DeleteJsonAllocator(x)

#include <cereal/archives/json.hpp>
