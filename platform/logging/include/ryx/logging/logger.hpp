// ryx::logging::Logger: writes formatted messages under one logger name.
//
// Log(level, format, arguments...) is the entry point: it asks Filter whether
// the message is wanted, formats it (each "%N%" of the format becomes the text
// of the N-th argument, counting from 0) and hands it to Output, which passes
// it to the sink set with RyxLoggingSetSink or, without one, writes it to
// stderr as one line. Log never throws and never ends the process, so callers
// may log from any error path, noexcept ones included: when the message cannot
// be built on the heap, it goes out formatted in a fixed buffer on the stack,
// cut short if it does not fit.
#pragma once

#include <ryx/logging/export.hpp>
#include <ryx/logging/level.hpp>
#include <ryx/logging/name.hpp>

#include <charconv>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace ryx::logging {

class RYX_LOGGING_EXPORT Logger {
 public:
  using Argument = std::function<void(std::string*)>;

  // Appends the text of one argument of a message. It refers to the argument
  // and does not copy it, so it lives no longer than the call to Log.
  template <class T>
  class RYX_LOGGING_LOCAL Functor {
   public:
    explicit Functor(T const& argument) noexcept : argument(&argument) {}
    void operator()(std::string* out) const { Append(out, *argument); }

   private:
    static void Append(std::string* out, T const& value) {
      if constexpr (std::is_array_v<T>) {
        // A string literal: its whole length, without the terminator.
        out->append(value, std::extent_v<T> - 1);
      } else if constexpr (std::is_convertible_v<T const&, char const*>) {
        char const* const text = value;
        out->append(text != nullptr ? text : "(null)");
      } else if constexpr (std::is_convertible_v<T const&, std::string const&>) {
        out->append(static_cast<std::string const&>(value));
      } else {
        static_assert(std::is_arithmetic_v<T>, "Log arguments are strings or numbers");
        out->append(std::to_string(value));
      }
    }

    T const* argument;
  };

  // The text of one argument of a message formatted without the heap.
  struct Piece {
    char const* data;
    std::size_t size;
  };

  explicit Logger(Name const& name);
  ~Logger();

  Name const& GetName() const noexcept { return name; }

  // True when a message of `level` for `loggerName` is to be written: every
  // level from Info up.
  bool Filter(Name const& loggerName, Level level) const noexcept;

  // Appends to `out` the format with each "%N%" replaced by what arguments[N]
  // appends. A placeholder whose index has no argument, and any other '%',
  // are copied as they are.
  void Format(std::string* out, Name const& loggerName, Level level, char const* format,
              Argument const* arguments, std::size_t count) const;

  // Writes the finished message: to the sink when one is set, otherwise as one
  // line on stderr. `flush` asks for the text to reach its destination before
  // the call returns. The level travels with the message because the sink
  // receives it.
  void Output(std::unique_ptr<std::string> message, Level level, bool flush) const;

  // Formats the message as Format does, into a fixed buffer on the stack
  // (longer messages are cut short), and writes it as Output does. Allocates
  // nothing; a message that cannot be written is dropped.
  void OutputReduced(Level level, char const* format, Piece const* arguments,
                     std::size_t count) const noexcept;

  template <class... Args>
  RYX_LOGGING_LOCAL void Log(Level level, char const* format, Args const&... args) const noexcept;

 private:
  // Room for the decimal text of any number argument.
  using Digits = char[32];

  template <class T>
  RYX_LOGGING_LOCAL static Piece PieceOf(T const& value, Digits& digits) noexcept {
    if constexpr (std::is_array_v<T>) {
      return {value, std::extent_v<T> - 1};
    } else if constexpr (std::is_convertible_v<T const&, char const*>) {
      char const* const text = value != nullptr ? static_cast<char const*>(value) : "(null)";
      return {text, std::strlen(text)};
    } else if constexpr (std::is_convertible_v<T const&, std::string const&>) {
      std::string const& text = value;
      return {text.data(), text.size()};
    } else {
      // The unary plus writes a bool or a character as a number, as Functor does.
      auto const written = std::to_chars(digits, digits + sizeof(Digits), +value);
      return {digits, written.ec == std::errc() ? static_cast<std::size_t>(written.ptr - digits)
                                                : std::size_t{0}};
    }
  }

  Name name;
};

template <class... Args>
inline void Logger::Log(Level level, char const* format, Args const&... args) const noexcept {
  if (!Filter(GetName(), level)) {
    return;
  }
  try {
    auto message = std::make_unique<std::string>();
    // One spare element so that a message without arguments still has an array.
    Argument const arguments[sizeof...(Args) + 1] = {Functor<Args>(args)..., Argument()};
    Format(message.get(), GetName(), level, format, arguments, sizeof...(Args));
    Output(std::move(message), level, static_cast<unsigned>(level) > 15u);
  } catch (...) {
    // Nothing was written: Output writes the message whole or throws before.
    [[maybe_unused]] Digits digits[sizeof...(Args) + 1];
    [[maybe_unused]] std::size_t index = 0;
    Piece const pieces[sizeof...(Args) + 1] = {PieceOf(args, digits[index++])..., Piece{"", 0}};
    OutputReduced(level, format, pieces, sizeof...(Args));
  }
}

}  // namespace ryx::logging
