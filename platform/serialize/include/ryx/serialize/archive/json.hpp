// The one way to include cereal's JSON archives.
//
// Before the JSON reader and writer are compiled this header makes every
// failed check of the reader call cereal::archive::ThrowJsonParseError, makes
// the parser iterative, so that a deeply nested document costs heap memory in
// proportion to its size instead of stack, and makes rapidjson throw
// std::bad_alloc where it would go on with the NULL of a failed malloc. These
// settings change inline code, so every translation unit of a program must
// see the same ones: include this header, never <cereal/archives/json.hpp> or
// rapidjson directly, before the JSON archives are used.
#pragma once

#if defined(CEREAL_ARCHIVES_JSON_HPP_)
#error "<cereal/archives/json.hpp> was included before <ryx/serialize/archive/json.hpp>"
#endif
#if defined(RAPIDJSON_RAPIDJSON_H_) || defined(CEREAL_RAPIDJSON_RAPIDJSON_H_)
#error "rapidjson was included before <ryx/serialize/archive/json.hpp>"
#endif
#if __has_include(<cereal/external/rapidjson/rapidjson.h>)
#error "cereal must be built against the system rapidjson (as Debian's is)"
#endif

#include <ryx/serialize/archive/json_parse_error.hpp>

#include <cstddef>
#include <new>

// An expression, so that it fits wherever the reader places its checks.
#define RYX_SERIALIZE_JSON_CHECK(x) \
  ((x) ? static_cast<void>(0) : ::cereal::archive::ThrowJsonParseError(#x))

#define RAPIDJSON_ASSERT_THROWS
#define RAPIDJSON_ASSERT(x) RYX_SERIALIZE_JSON_CHECK(x)
#define RAPIDJSON_PARSE_DEFAULT_FLAGS \
  kParseFullPrecisionFlag | kParseNanAndInfFlag | kParseIterativeFlag

#include <rapidjson/allocators.h>
#include <rapidjson/internal/stack.h>

// rapidjson takes memory from the C runtime in two places, the stacks of the
// reader, the writer and the document, and the chunks of the document's pool,
// and uses what malloc or realloc answered without a test. With these two
// members a refusal throws std::bad_alloc there instead; a stack that cannot
// grow keeps its old block.
namespace rapidjson {

namespace internal {

template <>
inline void Stack<CrtAllocator>::Resize(std::size_t newCapacity) {
  std::size_t const size = GetSize();
  void* const grown = allocator_->Realloc(stack_, GetCapacity(), newCapacity);
  if (grown == nullptr && newCapacity != 0) {
    throw std::bad_alloc();
  }
  stack_ = static_cast<char*>(grown);
  stackTop_ = stack_ + size;
  stackEnd_ = stack_ + newCapacity;
}

}  // namespace internal

template <>
inline bool MemoryPoolAllocator<CrtAllocator>::AddChunk(std::size_t capacity) {
  if (baseAllocator_ == nullptr) {
    ownBaseAllocator_ = baseAllocator_ = RAPIDJSON_NEW(CrtAllocator());
  }
  void* const block = baseAllocator_->Malloc(RAPIDJSON_ALIGN(sizeof(ChunkHeader)) + capacity);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  auto* const chunk = static_cast<ChunkHeader*>(block);
  chunk->capacity = capacity;
  chunk->size = 0;
  chunk->next = chunkHead_;
  chunkHead_ = chunk;
  return true;
}

}  // namespace rapidjson

#include <cereal/archives/json.hpp>
