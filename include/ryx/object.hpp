// The class interface of the object model, in one header, with the archives
// its values are saved into (cereal's JSON archive through the one header that
// configures its reader).
#pragma once

#include <ryx/serialize/archive/json.hpp>
#include <ryx/templating/serialize/archive/output/data.hpp>

#include <cereal/archives/portable_binary.hpp>
#include <cereal/archives/xml.hpp>

#include <ryx/capi/convert.hpp>
#include <ryx/capi/peek.hpp>
#include <ryx/hash/murmur_three32.hpp>
#include <ryx/object/adaptor.hpp>
#include <ryx/object/array.hpp>
#include <ryx/object/bad_cast.hpp>
#include <ryx/object/bool.hpp>
#include <ryx/object/container/const_iterator.hpp>
#include <ryx/object/container/iterator.hpp>
#include <ryx/object/dictionary.hpp>
#include <ryx/object/dictionary/property.hpp>
#include <ryx/object/double.hpp>
#include <ryx/object/enum.hpp>
#include <ryx/object/enum_dummy.hpp>
#include <ryx/object/float.hpp>
#include <ryx/object/int16.hpp>
#include <ryx/object/int32.hpp>
#include <ryx/object/int64.hpp>
#include <ryx/object/int8.hpp>
#include <ryx/object/object.hpp>
#include <ryx/object/option.hpp>
#include <ryx/object/options.hpp>
#include <ryx/object/parse.hpp>
#include <ryx/object/pointer.hpp>
#include <ryx/object/primitive.hpp>
#include <ryx/object/problems.hpp>
#include <ryx/object/registry/get.hpp>
#include <ryx/object/registry/info.hpp>
#include <ryx/object/required.hpp>
#include <ryx/object/required_text.hpp>
#include <ryx/object/serialize/binary.hpp>
#include <ryx/object/serialize/json.hpp>
#include <ryx/object/serialize/location.hpp>
#include <ryx/object/serialize/plain_json.hpp>
#include <ryx/object/serialize/load.hpp>
#include <ryx/object/serialize/load_functions.hpp>
#include <ryx/object/serialize/plain_functions.hpp>
#include <ryx/object/nesting_limit.hpp>
#include <ryx/object/serialize/required.hpp>
#include <ryx/object/serialize/save.hpp>
#include <ryx/object/serialize/save_functions.hpp>
#include <ryx/object/serialize/template_data.hpp>
#include <ryx/object/serialize/xml.hpp>
#include <ryx/object/string.hpp>
#include <ryx/object/uint16.hpp>
#include <ryx/object/uint32.hpp>
#include <ryx/object/uint64.hpp>
#include <ryx/object/uint8.hpp>
#include <ryx/type/bad_cast.hpp>
