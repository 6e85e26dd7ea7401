#include <ryx/object/serialize/json.hpp>

#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/save.hpp>

#include "object/serialize/detail/handlers.hpp"
#include "object/serialize/detail/string_stream.hpp"
#include "object/serialize/detail/json_numbers.hpp"
#include "object/serialize/detail/view_stream.hpp"

namespace ryx::object {

#define RYX_OBJECT_DETAIL_OUTPUT cereal::JSONOutputArchive
#define RYX_OBJECT_DETAIL_INPUT cereal::JSONInputArchive
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_SAVE)
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_LOAD)

std::string ToJson(std::shared_ptr<Object const> const& value) {
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
  return text.Take();
}

// The parser is iterative (see <ryx/serialize/archive/json.hpp>), so any depth
// of nesting only costs memory in proportion to the document; Load refuses
// values nested deeper than the limit.
std::shared_ptr<Object> FromJson(std::string_view document) {
  detail::CheckJsonNumbers(document);
  detail::ViewStream in(document);
  cereal::JSONInputArchive archive(in);
  std::shared_ptr<Object> value;
  Load(archive, value);
  return value;
}

}  // namespace ryx::object
