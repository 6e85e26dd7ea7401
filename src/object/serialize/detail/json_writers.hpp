// The rapidjson writers of the direct JSON writers (typed and plain), in the
// two layouts, writing into a StringOutput.
//
// Indented is cereal's JSON output archive's layout: a line per member and
// element, four spaces per level, a blank after each colon. Both writers can
// also copy text that is JSON already (a quoted member name, a number
// formatted elsewhere) in one piece, after the same separator and
// indentation as any other value.
#pragma once

#include <string_view>

#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/json_allocator.hpp"
#include "object/serialize/detail/string_output.hpp"

#include <rapidjson/prettywriter.h>
#include <rapidjson/writer.h>

namespace ryx::object::detail {

// The indentation of cereal's JSON output archive with its default options.
inline constexpr char JsonIndentChar = ' ';
inline constexpr unsigned JsonIndentLength = 4;

template <class Base, bool Pretty>
class LiteralWriter : public Base {
 public:
  using Base::Base;

  void Literal(std::string_view json, rapidjson::Type type) {
    if constexpr (Pretty) {
      this->PrettyPrefix(type);
    } else {
      this->Prefix(type);
    }
    // A literal is never the whole document, so nothing needs flushing.
    this->os_->Write(json.data(), json.size());
  }
};

using JsonEncoding = rapidjson::UTF8<>;
using CompactJsonWriter =
    LiteralWriter<rapidjson::Writer<StringOutput, JsonEncoding, JsonEncoding, JsonStackAllocator,
                                    rapidjson::kWriteDefaultFlags>,
                  false>;
using IndentedJsonWriter =
    LiteralWriter<rapidjson::PrettyWriter<StringOutput, JsonEncoding, JsonEncoding,
                                          JsonStackAllocator, rapidjson::kWriteDefaultFlags>,
                  true>;

}  // namespace ryx::object::detail
