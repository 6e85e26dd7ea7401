#include <ryx/logging/logger.hpp>

#include "sink.hpp"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace ryx::logging {

namespace {

// Walks a format: `text(begin, size)` receives each run copied as it is and
// `argument(index)` each placeholder "%N%" with N below `count`. A placeholder
// whose index has no argument, and any other '%', are copied as they are.
template <class Text, class Argument>
void Expand(char const* format, std::size_t count, Text&& text, Argument&& argument) {
  char const* run = format;
  char const* cursor = format;
  while (*cursor != '\0') {
    if (*cursor == '%' && std::isdigit(static_cast<unsigned char>(cursor[1]))) {
      char const* end = cursor + 1;
      std::size_t index = 0;
      // Bounded so that a long run of digits cannot overflow the index.
      while (std::isdigit(static_cast<unsigned char>(*end)) && index <= count) {
        index = index * 10 + static_cast<std::size_t>(*end - '0');
        ++end;
      }
      if (*end == '%' && index < count) {
        text(run, static_cast<std::size_t>(cursor - run));
        argument(index);
        cursor = end + 1;
        run = cursor;
        continue;
      }
    }
    ++cursor;
  }
  text(run, static_cast<std::size_t>(cursor - run));
}

}  // namespace

Logger::Logger(Name const& name) : name(name) {}

Logger::~Logger() = default;

bool Logger::Filter(Name const& /*loggerName*/, Level level) const noexcept {
  return level >= Level::Info;
}

void Logger::Format(std::string* out, Name const& /*loggerName*/, Level /*level*/,
                    char const* format, Argument const* arguments, std::size_t count) const {
  Expand(
      format, count, [out](char const* text, std::size_t size) { out->append(text, size); },
      [out, arguments](std::size_t index) { arguments[index](out); });
}

void Logger::Output(std::unique_ptr<std::string> message, Level level, bool flush) const {
  if (detail::Deliver(name.GetValue().c_str(), static_cast<int>(level), message->c_str())) {
    return;
  }
  // One write per line, so that lines of concurrent threads do not interleave.
  message->push_back('\n');
  std::fwrite(message->data(), 1, message->size(), stderr);
  if (flush) {
    std::fflush(stderr);
  }
}

void Logger::OutputReduced(Level level, char const* format, Piece const* arguments,
                           std::size_t count) const noexcept {
  // Room for the terminator, or for the line feed on stderr.
  char line[512];
  std::size_t const room = sizeof line - 1;
  std::size_t size = 0;
  auto const append = [&](char const* text, std::size_t length) {
    length = std::min(length, room - size);
    std::copy_n(text, length, line + size);
    size += length;
  };
  Expand(format, count, append,
         [&](std::size_t index) { append(arguments[index].data, arguments[index].size); });
  line[size] = '\0';
  try {
    if (detail::Deliver(name.GetValue().c_str(), static_cast<int>(level), line)) {
      return;
    }
  } catch (...) {
    return;
  }
  line[size] = '\n';
  std::fwrite(line, 1, size + 1, stderr);
  std::fflush(stderr);
}

}  // namespace ryx::logging
