#include <ryx/object/serialize/template_data.hpp>

#include <ryx/object/serialize/save.hpp>

#include <utility>

#include "object/serialize/detail/handlers.hpp"

namespace ryx::object {

#define RYX_OBJECT_DETAIL_OUTPUT templating::serialize::archive::output::Data
RYX_OBJECT_SERIALIZED_KINDS(RYX_OBJECT_DETAIL_INSTANTIATE_SAVE)

mstch::node ToTemplateData(std::shared_ptr<Object const> const& value) {
  templating::serialize::archive::output::Data archive;
  Save(archive, value);
  return std::move(archive).TakeRoot();
}

}  // namespace ryx::object
