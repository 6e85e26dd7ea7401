#include <ryx/object/serialize/xml.hpp>

#include <ryx/object/serialize/load.hpp>
#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/serialize/save.hpp>

#include "object/serialize/detail/handlers.hpp"
#include "object/serialize/detail/string_stream.hpp"
#include "object/serialize/detail/view_stream.hpp"
#include "object/serialize/detail/xml_depth.hpp"
#include "object/serialize/detail/xml_formatting.hpp"

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

}  // namespace

std::string ToXml(std::shared_ptr<Object const> const& value) {
  detail::StringStream text;
  {
    // The archive writes the document when it is destroyed.
    cereal::XMLOutputArchive archive(text);
    archive.saveValue(detail::ThrowFormattingFailures{});
    Save(archive, value);
  }
  return text.Take();
}

// The XML parser recurses once per element level: the depth is checked first.
std::shared_ptr<Object> FromXml(std::string_view document) {
  detail::CheckXmlDepth(document, MaxXmlDepth());
  detail::ViewStream in(document);
  cereal::XMLInputArchive archive(in);
  std::shared_ptr<Object> value;
  Load(archive, value);
  return value;
}

}  // namespace ryx::object
