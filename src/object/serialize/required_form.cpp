#include <ryx/object/serialize/required.hpp>

#include <ryx/object/required.hpp>

#include <type_traits>
#include <vector>

#include <cereal/types/vector.hpp>

#include "object/detail/nesting_guard.hpp"
#include "object/detail/out_of_line.hpp"
#include "object/serialize/detail/archive_stack.hpp"
#include "object/serialize/detail/archives.hpp"
#include "object/serialize/detail/binary_fields.hpp"

namespace ryx::object {

template <class Archive>
void CEREAL_SAVE_FUNCTION_NAME(Archive& archive, Required const& required) {
  detail::NestingGuard const level(detail::Nesting::schema, detail::LaterStackPerSchema<Archive>);
  // The type goes out of line: this frame is on the stack once per level.
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryOutputArchive>) {
    detail::OutOfLine([&] {
      detail::WriteNumber(archive, required.GetType().GetValue());
      detail::WriteCount(archive, required.GetChildTypes().size());
    });
    for (Required const& child : required.GetChildTypes()) {
      CEREAL_SAVE_FUNCTION_NAME(archive, child);
    }
  } else {
    detail::OutOfLine([&] { archive(cereal::make_nvp("type", required.GetType().GetValue())); });
    archive(cereal::make_nvp("child_types", required.GetChildTypes()));
  }
}

template <class Archive>
void CEREAL_LOAD_FUNCTION_NAME(Archive& archive, Required& required) {
  detail::NestingGuard const level(detail::Nesting::schema);
  unsigned int type = 0;
  std::vector<Required> children;
  if constexpr (std::is_same_v<Archive, cereal::PortableBinaryInputArchive>) {
    type = detail::OutOfLine([&] { return detail::ReadNumber<unsigned int>(archive); });
    children = detail::ReadItems<Required>(
        archive, [](Archive& in, Required& child) { CEREAL_LOAD_FUNCTION_NAME(in, child); });
  } else {
    detail::OutOfLine([&] { archive(cereal::make_nvp("type", type)); });
    // The text forms' counts are those of the parsed document.
    archive(cereal::make_nvp("child_types", children));
  }
  required = Required(hash::MurmurThree32(type), children.cbegin(), children.cend());
}

template void CEREAL_SAVE_FUNCTION_NAME(cereal::XMLOutputArchive&, Required const&);
template void CEREAL_SAVE_FUNCTION_NAME(cereal::JSONOutputArchive&, Required const&);
template void CEREAL_SAVE_FUNCTION_NAME(cereal::PortableBinaryOutputArchive&, Required const&);
template void CEREAL_SAVE_FUNCTION_NAME(templating::serialize::archive::output::Data&,
                                        Required const&);
template void CEREAL_LOAD_FUNCTION_NAME(cereal::XMLInputArchive&, Required&);
template void CEREAL_LOAD_FUNCTION_NAME(cereal::JSONInputArchive&, Required&);
template void CEREAL_LOAD_FUNCTION_NAME(cereal::PortableBinaryInputArchive&, Required&);

}  // namespace ryx::object
