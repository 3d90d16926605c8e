// SPDX-License-Identifier: MIT
#include "tally/server/Log.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>
#include <thread>
#include <utility>

#include "tests/tally_support/Eventually.h"

namespace mivo::tally {
namespace {

using testing::HasSubstr;

struct Pipe {
  enum class Kind { pipe, socket };
  explicit Pipe(Kind kind = Kind::pipe) {
    EXPECT_EQ(kind == Kind::pipe ? ::pipe2(ends.data(), O_CLOEXEC)
                                 : ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()),
              0);
  }
  ~Pipe() {
    ::close(ends[0]);
    ::close(ends[1]);
  }
  int writeEnd() const { return ends[1]; }
  std::string read() const {
    std::string text;
    std::array<char, 65536> bytes{};
    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    for (ssize_t size = 0; (size = ::read(ends[0], bytes.data(), bytes.size())) > 0;)
      text.append(bytes.data(), static_cast<std::size_t>(size));
    return text;
  }
  std::array<int, 2> ends{};
};

TEST(LogTest, writesOneObjectALine) {
  const Pipe pipe;
  {
    Log log{pipe.writeEnd()};
    log.request({"GET", "/get/a\"\\\n\xff", 200, std::chrono::microseconds{42}, {}});
    log.request({"GET", "/" + std::string(500, 'x'), 429, std::chrono::microseconds{1}, "192.0.2.7"});
    log.event("store", "Redis is there");
  }
  const auto text = pipe.read();
  const auto second = text.find('\n') + 1;
  EXPECT_TRUE(text.starts_with("{\"time\":\"20")) << text;
  EXPECT_THAT(
      text.substr(0, second),
      HasSubstr(
          "Z\",\"method\":\"GET\",\"target\":\"/get/a\\\"\\\\\\n\xef\xbf\xbd\",\"status\":200,\"microseconds\":42}"));
  EXPECT_THAT(text,
              HasSubstr("/" + std::string(199, 'x') + R"(","status":429,"microseconds":1,"address":"192.0.2.7"})"));
  EXPECT_TRUE(text.ends_with("\"event\":\"store\",\"text\":\"Redis is there\"}\n"));
}

TEST(LogTest, writesTheRequestsOfItsLevel) {
  using Level = LogDetail::Level;
  const auto written = [](LogDetail detail) {
    const Pipe pipe;
    {
      Log log{pipe.writeEnd(), detail};
      for (const auto status : {200U, 399U, 400U, 499U, 500U, 503U, 200U}) log.request({"GET", "/", status, {}, {}});
    }
    std::string statuses;
    const auto text = pipe.read();
    constexpr std::string_view before = "\"status\":";
    for (auto at = text.find(before); at != std::string::npos; at = text.find(before, at + 1))
      statuses += text.substr(at + before.size(), 3) + (text[text.find('}', at) - 1] == '2' ? "* " : " ");
    return statuses;
  };
  EXPECT_EQ(written({Level::info, 1}), "200 399 400 499 500 503 200 ");
  EXPECT_EQ(written({Level::info, 2}), "399* 400 499 500 503 ") << "* says that it is one of two";
  EXPECT_EQ(written({Level::warning, 1}), "400 499 500 503 ");
  EXPECT_EQ(written({Level::error, 1}), "500 503 ");
}

// The pipe holds 64 KB and nobody reads: the caller goes on, and hears later what was left out. There are 20 MB of
// lines: at most eight are under way when as many wait.
TEST(LogTest, neverWaitsForAReader) {
  const Pipe pipe;
  std::string text;
  constexpr int lines = 200'000;
  {
    Log log{pipe.writeEnd()};
    for (int i = 0; i < lines; ++i) log.request({"GET", "/get/app.example/feature12", 200, {}, {}});
    std::jthread reader{[&] {
      std::array<char, 65536> bytes{};
      while (text.find("lines were left out") == std::string::npos) {
        const auto size = ::read(pipe.ends[0], bytes.data(), bytes.size());
        if (size <= 0) break;
        text.append(bytes.data(), static_cast<std::size_t>(size));
      }
    }};
  }
  EXPECT_THAT(text, HasSubstr("lines were left out"));
  EXPECT_LT(std::ranges::count(text, '\n'), lines);
}

TEST(LogTest, keepsUtf8AndCutsWhatIsLong) {
  const Pipe pipe;
  {
    Log log{pipe.writeEnd()};
    log.event("store", "Größe \xe2\x80\xa6");
    log.request({std::string(7000, 'M'), "/", 400, {}, {}});
  }
  const auto text = pipe.read();
  EXPECT_THAT(text, HasSubstr("Größe \xe2\x80\xa6"));
  EXPECT_THAT(text, HasSubstr('"' + std::string(32, 'M') + '"'));
}

TEST(LogTest, endsWhereNobodyReads) {
  const Pipe pipe;
  std::optional<Log> log{std::in_place, pipe.writeEnd()};
  for (int i = 0; i < 2000; ++i) log->event("filler", std::string(100, 'x'));  // three times what the pipe holds
  const auto begin = std::chrono::steady_clock::now();
  log.reset();
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds{20});
}

// Whoever shares the terminal may have made it non-blocking: a full pipe is then waited for, and no line is lost.
void expectNothingIsLost(Pipe pipe) {
  ::fcntl(pipe.ends[1], F_SETFL, O_NONBLOCK);
  constexpr int lines = 5000;
  std::string text;
  std::jthread reader{[&] {
    std::array<char, 1000> bytes{};
    for (ssize_t size = 0; (size = ::read(pipe.ends[0], bytes.data(), bytes.size())) > 0;)
      text.append(bytes.data(), static_cast<std::size_t>(size));
  }};
  {
    Log log{pipe.writeEnd()};
    for (int i = 0; i < lines; ++i) log.event("filler", std::string(100, 'x'));
  }
  ::close(std::exchange(pipe.ends[1], -1));
  reader.join();
  EXPECT_EQ(std::ranges::count(text, '\n'), lines);
}

TEST(LogTest, losesNothingWhereItsEndDoesNotBlock) { expectNothingIsLost(Pipe{}); }
TEST(LogTest, losesNothingInASocket) { expectNothingIsLost(Pipe{Pipe::Kind::socket}); }

TEST(LogTest, countsWhatNobodyIsLeftToTake) {
  Pipe pipe{Pipe::Kind::socket};
  ::close(std::exchange(pipe.ends[0], -1));
  Log log{pipe.writeEnd()};
  for (int i = 0; i < 3; ++i) log.event("filler", "x");
  EXPECT_TRUE(test::eventually([&] { return log.linesLeftOut() == 3; }));
}

}  // namespace
}  // namespace mivo::tally
