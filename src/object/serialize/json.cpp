#include <ryx/object/serialize/json.hpp>

#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/save.hpp>

#include <cstddef>
#include <optional>
#include <utility>

#include "object/serialize/detail/handlers.hpp"
#include "object/serialize/detail/json_location.hpp"
#include "object/serialize/detail/json_numbers.hpp"
#include "object/serialize/detail/json_reader.hpp"
#include "object/serialize/detail/locate.hpp"
#include "object/serialize/detail/json_writer.hpp"
#include "object/serialize/detail/string_stream.hpp"
#include "object/serialize/detail/view_stream.hpp"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

namespace ryx::object {

#define RYX_OBJECT_DETAIL_OUTPUT cereal::JSONOutputArchive
#define RYX_OBJECT_DETAIL_INPUT cereal::JSONInputArchive
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_SAVE)
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_LOAD)

namespace {

// The indented text without its layout: every blank and line break outside
// strings goes (inside them the writer escapes control characters).
std::string Compacted(std::string const& indented) {
  std::string compact;
  compact.reserve(indented.size());
  bool inString = false;
  for (std::size_t at = 0; at != indented.size(); ++at) {
    char const c = indented[at];
    if (inString) {
      compact += c;
      if (c == '\\' && at + 1 != indented.size()) {
        compact += indented[++at];
      } else if (c == '"') {
        inString = false;
      }
    } else if (c == '"') {
      inString = true;
      compact += c;
    } else if (c != ' ' && c != '\n') {
      compact += c;
    }
  }
  return compact;
}

// Where `document` stops being JSON, as the archive's parser reads it, or
// nothing: the archive does not say (it fails at the root), so a failed load
// parses again to find the place.
std::optional<std::size_t> SyntaxError(std::string_view document) {
  rapidjson::Reader reader;
  rapidjson::MemoryStream in(document.data(), document.size());
  rapidjson::BaseReaderHandler<> ignore;
  try {
    if (reader.Parse(in, ignore)) {
      return std::nullopt;
    }
  } catch (cereal::archive::JsonParseError const&) {
    return std::nullopt;
  }
  return reader.GetErrorOffset();
}

// The path the exception being handled carries. Call only in a catch block.
std::string FailedPath() {
  try {
    throw;
  } catch (std::exception const& error) {
    Location const* const location = FindLocation(error);
    return location != nullptr ? location->path : std::string();
  } catch (...) {
    return std::string();
  }
}

// The parser is iterative (see <ryx/serialize/archive/json.hpp>), so any depth
// of nesting only costs memory in proportion to the document; Load refuses
// values nested deeper than the limit, and places any failure by its path.
std::shared_ptr<Object> LoadThroughArchive(std::string_view document) {
  try {
    detail::ViewStream in(document);
    cereal::JSONInputArchive archive(in);
    std::shared_ptr<Object> value;
    Load(archive, value);
    return value;
  } catch (...) {
    Location location;
    std::optional<std::size_t> offset = SyntaxError(document);
    if (!offset) {
      // Load placed the failure by the value's path: find that value's text.
      offset = detail::FindJsonValue(document, FailedPath());
    }
    if (offset) {
      detail::LocateInText(document, *offset, location);
    }
    detail::RethrowLocated(std::move(location));
  }
}

}  // namespace

std::string ToJsonThroughArchive(std::shared_ptr<Object const> const& value, JsonLayout layout) {
  detail::StringStream text;
  {
    // The archive completes the document when it is destroyed.
    cereal::JSONOutputArchive archive(text);
    try {
      Save(archive, value);
    } catch (...) {
      // The document is dropped. Its destructor must not close the node that
      // failed: the writer may not have opened it, and its checks would throw
      // from a noexcept destructor. A node marked as an array not yet started
      // is left alone.
      archive.makeArray();
      throw;
    }
  }
  std::string indented = text.Take();
  return layout == JsonLayout::Indented ? indented : Compacted(indented);
}

std::string ToJson(std::shared_ptr<Object const> const& value, JsonLayout layout) {
  std::string text;
  if (detail::WriteJson(value.get(), layout, text)) {
    return text;
  }
  return ToJsonThroughArchive(value, layout);
}

std::shared_ptr<Object> FromJsonThroughArchive(std::string_view document) {
  detail::CheckJsonNumbers(document);
  return LoadThroughArchive(document);
}

// The direct reader places a failure by line and column as well as by path:
// it has the text; the archive only has the values parsed from it.
std::shared_ptr<Object> FromJson(std::string_view document) {
  detail::CheckJsonNumbers(document);
  Location failure;
  try {
    std::shared_ptr<Object> value;
    if (detail::ReadJson(document, value, failure)) {
      return value;
    }
    return LoadThroughArchive(document);
  } catch (...) {
    detail::RethrowLocated(std::move(failure));
  }
}

}  // namespace ryx::object
