// The rapidjson writers of the direct JSON writers (typed and plain), in the
// two layouts, writing into a StringOutput.
//
// Indented is cereal's JSON output archive's layout: a line per member and
// element, four spaces per level, a blank after each colon. Both writers can
// also write a value's text themselves (a quoted member name, a number
// formatted elsewhere, a string escaped elsewhere) after the same separator
// and indentation as any other value.
#pragma once

#include <ryx/object/serialize/json.hpp>

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
    Raw(type, [json](StringOutput& out) { out.Write(json.data(), json.size()); });
  }

  // A value of `type` whose text `write` puts into the output itself. The
  // output needs no flushing afterwards, even for a whole document.
  template <class Write>
  void Raw(rapidjson::Type type, Write const& write) {
    if constexpr (Pretty) {
      this->PrettyPrefix(type);
    } else {
      this->Prefix(type);
    }
    write(*this->os_);
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

// Calls `write` with a writer of `layout` writing into `out`, and returns
// what it returns.
template <class Write>
decltype(auto) WithJsonWriter(JsonLayout layout, StringOutput& out, Write&& write) {
  JsonStackAllocator allocator;
  if (layout == JsonLayout::Indented) {
    IndentedJsonWriter writer(out, &allocator);
    writer.SetIndent(JsonIndentChar, JsonIndentLength);
    return write(writer);
  }
  CompactJsonWriter writer(out, &allocator);
  return write(writer);
}

}  // namespace ryx::object::detail
