// cereal::archive::JsonParseError and ThrowJsonParseError: the error raised
// when a check of the JSON reader fails (a value of the wrong JSON kind, a
// number out of range, a document that did not parse).
//
// The reader's checks are routed here by <ryx/serialize/archive/json.hpp>, so
// a bad document becomes an exception instead of an abort or a crash.
#pragma once

#include <ryx/serialize/export.hpp>

#include <cereal/details/helpers.hpp>

#include <string>

namespace cereal::archive {

class RYX_SERIALIZE_EXPORT JsonParseError : public Exception {
 public:
  explicit JsonParseError(std::string check);

  // The text of the failed check, such as "IsString()".
  std::string const& GetCheck() const noexcept { return check; }

 private:
  std::string check;
};

// Throws JsonParseError carrying `check`; never returns.
[[noreturn]] RYX_SERIALIZE_EXPORT void ThrowJsonParseError(char const* check);

}  // namespace cereal::archive
