#include <ryx/logging/logger.hpp>

#include "sink.hpp"

#include <cctype>
#include <cstdio>

namespace ryx::logging {

Logger::Logger(Name const& name) : name(name) {}

Logger::~Logger() = default;

bool Logger::Filter(Name const& /*loggerName*/, Level level) const noexcept {
  return level >= Level::Info;
}

void Logger::Format(std::string* out, Name const& /*loggerName*/, Level /*level*/,
                    char const* format, Argument const* arguments, std::size_t count) const {
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
        arguments[index](out);
        cursor = end + 1;
        continue;
      }
    }
    out->push_back(*cursor);
    ++cursor;
  }
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

}  // namespace ryx::logging
