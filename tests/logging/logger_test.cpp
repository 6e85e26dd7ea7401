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

TEST(LoggerFunctor, AppendsALiteralsWholeLengthACStringUpToItsEndStringsAndNumbers) {
  std::string out;
  char const* const cString = "c\0ut";
  std::string const text = "s";
  Logger::Functor<char[4]>{"a\0b"}(&out);
  Logger::Functor<char const*>{cString}(&out);
  Logger::Functor<std::string>{text}(&out);
  Logger::Functor<int>{-42}(&out);
  EXPECT_EQ(out, std::string("a\0bcs-42", 8));
}

TEST(LoggerLog, HandsInfoAndAboveToTheSinkOnceAndDropsTheRest) {
  std::vector<std::string> heard;
  RyxLoggingSetSink(
      [](char const* logger, int level, char const* message, void* context) {
        static_cast<std::vector<std::string>*>(context)->push_back(
            std::string(logger) + ' ' + std::to_string(level) + ' ' + message);
      },
      &heard);
  Logger const logger(Name("ryx.object"));
  logger.Log(Level::Debug, "quiet");
  logger.Log(Level::Info, "%0%: the %1% parameter was NULL", "F", std::string("value"));
  RyxLoggingSetSink(nullptr, nullptr);
  EXPECT_EQ(heard, std::vector<std::string>{"ryx.object 8 F: the value parameter was NULL"});
}

// A sink that counts its calls and notes any call after it was replaced.
struct Counting {
  std::atomic<long> calls{0};
  std::atomic<bool> replaced{false};
  std::atomic<long> callsAfterReplacement{0};
};

void Count(char const*, int, char const*, void* context) {
  auto* const counting = static_cast<Counting*>(context);
  if (counting->replaced.load()) {
    ++counting->callsAfterReplacement;
  }
  ++counting->calls;
}

TEST(LoggingSink, CanBeReplacedWhileOtherThreadsLogWithoutLosingOrMisdirectingAMessage) {
  Counting first;
  Counting second;
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
  EXPECT_EQ(first.callsAfterReplacement, 0);
}

}  // namespace
