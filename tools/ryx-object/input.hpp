// The bytes of a file, or of standard input for "-", read once.
//
// A regular file is mapped, so a large document reaches the loaders without
// being copied; standard input, pipes and other files are read to their end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ryx::object::tool {

class Input {
 public:
  // Throws UsageError when the file cannot be opened or read.
  explicit Input(std::string const& path);
  Input(Input const&) = delete;
  Input& operator=(Input const&) = delete;
  ~Input();

  std::string_view Bytes() const noexcept { return bytes; }

 private:
  void* mapping = nullptr;
  std::size_t mappedSize = 0;
  std::string buffer;
  std::string_view bytes;
};

// The name of `path` in messages.
std::string DisplayName(std::string const& path);

}  // namespace ryx::object::tool
