#include "input.hpp"

#include "errors.hpp"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ryx::object::tool {

namespace {

[[noreturn]] void ThrowSystemError(std::string const& what, std::string const& path) {
  throw UsageError("cannot " + what + " " + DisplayName(path) + ": " + std::strerror(errno));
}

// Reads `fd` to its end, appending to `out`.
void ReadAll(int fd, std::string const& path, std::string& out) {
  constexpr std::size_t chunk = 1 << 16;
  for (;;) {
    std::size_t const used = out.size();
    out.resize(used + chunk);
    ssize_t const got = ::read(fd, out.data() + used, chunk);
    if (got < 0 && errno == EINTR) {
      out.resize(used);
      continue;
    }
    if (got < 0) {
      ThrowSystemError("read", path);
    }
    out.resize(used + static_cast<std::size_t>(got));
    if (got == 0) {
      return;
    }
  }
}

class Descriptor {
 public:
  explicit Descriptor(int fd) noexcept : fd(fd) {}
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;
  ~Descriptor() {
    if (fd > STDERR_FILENO) {
      ::close(fd);
    }
  }
  int Get() const noexcept { return fd; }

 private:
  int fd;
};

}  // namespace

std::string DisplayName(std::string const& path) { return path == "-" ? "standard input" : path; }

Input::Input(std::string const& path) {
  Descriptor const file(path == "-" ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Get() < 0) {
    ThrowSystemError("open", path);
  }
  struct stat status {};
  if (::fstat(file.Get(), &status) != 0) {
    ThrowSystemError("read", path);
  }
  if (S_ISDIR(status.st_mode)) {
    errno = EISDIR;
    ThrowSystemError("read", path);
  }
  if (S_ISREG(status.st_mode) && status.st_size > 0) {
    std::size_t const size = static_cast<std::size_t>(status.st_size);
    void* const mapped = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file.Get(), 0);
    if (mapped != MAP_FAILED) {
      mapping = mapped;
      mappedSize = size;
      bytes = std::string_view(static_cast<char const*>(mapped), size);
      return;
    }
  }
  ReadAll(file.Get(), path, buffer);
  bytes = buffer;
}

Input::~Input() {
  if (mapping != nullptr) {
    ::munmap(mapping, mappedSize);
  }
}

}  // namespace ryx::object::tool
