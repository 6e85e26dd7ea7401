#include <ryx/logging.h>
#include <ryx/logging/logger.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

using ryx::logging::Level;
using ryx::logging::Logger;
using ryx::logging::Name;

// The message OutputReduced, the heap-free fallback of Log, hands the sink.
std::string Reduced(Logger const& logger, char const* format,
                    std::vector<std::string> const& arguments) {
  std::vector<Logger::Piece> pieces;
  for (auto const& argument : arguments) {
    pieces.push_back({argument.data(), argument.size()});
  }
  std::string heard;
  RyxLoggingSetSink([](char const*, int, char const* message,
                       void* context) { *static_cast<std::string*>(context) = message; },
                    &heard);
  logger.OutputReduced(Level::Error, format, pieces.data(), pieces.size());
  RyxLoggingSetSink(nullptr, nullptr);
  return heard;
}

// Format and its fallback on the stack alike; the fallback cuts at 511 bytes.
TEST(LoggerFormat, ReplacesNumberedPlaceholdersAndCopiesEverythingElseAsItIs) {
  struct Case {
    char const* format;
    std::vector<std::string> arguments;
    char const* expected;
  };
  std::vector<std::string> eleven(11, "x");
  eleven[10] = "ten";
  Case const cases[] = {
      {"%1%-%0%-%1%", {"a", "b"}, "b-a-b"},
      {"<%10%>", eleven, "<ten>"},
      // Placeholders without an argument and stray percent signs stay.
      {"%2% %0", {"a"}, "%2% %0"},
      {"100% %x%%0%", {"a"}, "100% %x%a"},
      {"%99999999999999999999999%", {"a"}, "%99999999999999999999999%"},
      {"", {}, ""},
  };
  Logger const logger(Name("test"));
  for (Case const& c : cases) {
    std::vector<Logger::Argument> functions;
    for (auto const& argument : c.arguments) {
      functions.emplace_back([&argument](std::string* out) { out->append(argument); });
    }
    std::string out;
    logger.Format(&out, logger.GetName(), Level::Error, c.format, functions.data(),
                  functions.size());
    EXPECT_EQ(out, c.expected) << c.format;
    EXPECT_EQ(Reduced(logger, c.format, c.arguments), c.expected) << c.format;
  }
  EXPECT_EQ(Reduced(logger, "%0%!", {std::string(600, 'x')}), std::string(511, 'x'));
}

// Each argument kind appends its text: a literal its whole length, a C
// string up to its end, strings and numbers.
TEST(LoggerLog, HandsInfoAndAboveToTheSinkOnceWithEachArgumentsTextAndDropsTheRest) {
  std::vector<std::string> heard;
  RyxLoggingSetSink(
      [](char const* logger, int level, char const* message, void* context) {
        static_cast<std::vector<std::string>*>(context)->push_back(
            std::string(logger) + ' ' + std::to_string(level) + ' ' + message);
      },
      &heard);
  Logger const logger(Name("ryx.object"));
  char const* const cString = "c\0ut";
  logger.Log(Level::Debug, "quiet");
  logger.Log(Level::Info, "%0%: the %1% parameter was %2% %3%", "F", std::string("value"), cString,
             -42);
  RyxLoggingSetSink(nullptr, nullptr);
  EXPECT_EQ(heard, std::vector<std::string>{"ryx.object 8 F: the value parameter was c -42"});
}

// A sink that counts its calls, and those after its replacement returned.
struct Counting {
  std::atomic<long> calls{0};
  std::atomic<long> late{0};
  std::atomic<bool> replaced{false};
};

void Count(char const*, int, char const*, void* context) {
  auto& counting = *static_cast<Counting*>(context);
  counting.late += counting.replaced ? 1 : 0;
  ++counting.calls;
}

TEST(LoggingSink, CanBeReplacedWhileOtherThreadsLogWithoutLosingOrMisdirectingAMessage) {
  Counting first, second;
  RyxLoggingSetSink(Count, &first);
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([] {
      for (int i = 0; i < 5000; ++i) {
        Logger(Name("ryx.object")).Log(Level::Error, "message %0%", i);
      }
    });
  }
  std::this_thread::yield();
  RyxLoggingSetSink(Count, &second);
  first.replaced = true;
  for (auto& thread : threads) {
    thread.join();
  }
  RyxLoggingSetSink(nullptr, nullptr);
  EXPECT_EQ(first.calls + second.calls, 4 * 5000);
  EXPECT_EQ(first.late, 0);
}

}  // namespace
