#include <ryx/object/serialize/xml.hpp>

#include <ryx/object/serialize/load.hpp>
#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/serialize/location.hpp>
#include <ryx/object/serialize/save.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "object/detail/nesting_guard.hpp"
#include "object/serialize/detail/archive_stack.hpp"
#include "object/serialize/detail/handlers.hpp"
#include "object/serialize/detail/locate.hpp"
#include "object/serialize/detail/string_stream.hpp"
#include "object/serialize/detail/view_stream.hpp"
#include "object/serialize/detail/xml_depth.hpp"
#include "object/serialize/detail/xml_formatting.hpp"
#include "object/serialize/detail/xml_location.hpp"

namespace ryx::object {

#define RYX_OBJECT_DETAIL_OUTPUT cereal::XMLOutputArchive
#define RYX_OBJECT_DETAIL_INPUT cereal::XMLInputArchive
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_SAVE)
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_LOAD)

namespace {

// The deepest element a document within the nesting limit holds: the root,
// three elements per value level (a dictionary's "properties", its item and
// the item's "value"), then below the deepest value its schema with two per
// schema level ("child_types" and its item), and a field element.
std::size_t MaxXmlDepth() {
  std::size_t const limit = GetNestingLimit();
  return 1 + 3 * limit + 2 * limit + 2;
}

// Refuses a document the parser could not read within the nesting limit or
// within the stack left on this thread, placed at the element one level too
// deep.
void CheckXmlDepth(std::string_view document) {
  std::size_t const byLimit = MaxXmlDepth();
  std::size_t const byStack = detail::StackLeft() / detail::XmlParseStackPerElement;
  std::size_t const maxDepth = std::min(byLimit, byStack);
  if (std::optional<std::size_t> const tooDeep = detail::XmlTooDeepAt(document, maxDepth)) {
    Location location;
    detail::LocateInText(document, *tooDeep, location);
    throw LocatedError<NestingLimitError>(
        NestingLimitError(
            "XML elements are nested deeper than " + std::to_string(maxDepth) + " levels, " +
            (byStack < byLimit
                 ? std::string("more than the stack of this thread leaves room to parse")
                 : "more than a document within the nesting limit of " +
                       std::to_string(GetNestingLimit()) + " levels holds")),
        std::move(location));
  }
}

}  // namespace

// The archives live on the heap: each holds the XML library's first 64 KiB
// block of memory in place, a good part of a small thread's stack.

std::string ToXml(std::shared_ptr<Object const> const& value) {
  detail::StringStream text;
  {
    // The archive writes the document when it is destroyed, from this frame.
    auto archive = std::make_unique<cereal::XMLOutputArchive>(text);
    archive->saveValue(detail::ThrowFormattingFailures{});
    Save(*archive, value);
  }
  return text.Take();
}

// The XML parser recurses once per element level: the depth is checked first,
// against the nesting limit and against the stack left for the parser. Only
// then may a failure parse the document again to say where it happened.
std::shared_ptr<Object> FromXml(std::string_view document) {
  CheckXmlDepth(document);
  try {
    detail::ViewStream in(document);
    auto archive = std::make_unique<cereal::XMLInputArchive>(in);
    std::shared_ptr<Object> value;
    Load(*archive, value);
    return value;
  } catch (...) {
    detail::RethrowLocatedInXml(document);
  }
}

}  // namespace ryx::object
