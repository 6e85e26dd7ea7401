// detail::CheckXmlText, public so that the records of <ryx/object/record.hpp>
// refuse the same strings as the String kind.
#pragma once

#include <ryx/object/serialize/detail/xml_text.hpp>
