// SPDX-License-Identifier: MIT
#include "tally/server/Log.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <utility>

namespace mivo::tally {
namespace {

constexpr std::size_t mostWaiting = 8 << 20;
constexpr std::size_t worthWriting = 64 << 10;
constexpr std::size_t longestTarget = 200;
constexpr std::chrono::milliseconds gatheringTime{50};

void appendNumber(std::string& out, std::int64_t number) {
  std::array<char, 20> digits{};
  out.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

bool isPlain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

void appendEscaped(std::string& out, std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  for (const char c : text) {
    if (isPlain(c)) {
      out += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    out.append("\\u00").append(1, digits[byte >> 4U]).append(1, digits[byte & 15U]);
  }
}

void appendText(std::string& out, std::string_view name, std::string_view text) {
  out.append(",\"").append(name).append("\":\"");
  appendEscaped(out, text);
  out += '"';
}

void writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const auto written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return;  // there is nobody left to tell
    text.remove_prefix(static_cast<std::size_t>(written));
  }
}

}  // namespace

Log::Log(int descriptor) : descriptor_(descriptor), writer_([this](const std::stop_token& stop) { write(stop); }) {}

Log::~Log() = default;

void Log::request(const Request& request) {
  begin();
  appendText(line_, "method", request.method);
  appendText(line_, "target", request.target.substr(0, longestTarget));
  line_ += ",\"status\":";
  appendNumber(line_, request.status);
  line_ += ",\"microseconds\":";
  appendNumber(line_, request.duration.count());
  if (!request.address.empty()) appendText(line_, "address", request.address);
  end();
}

void Log::event(std::string_view name, std::string_view text) {
  begin();
  appendText(line_, "event", name);
  appendText(line_, "text", text);
  end();
}

void Log::begin() {
  line_ = "{\"time\":\"";
  line_ += dates_.log(std::chrono::system_clock::now());
  line_ += '"';
}

void Log::end() {
  line_ += "}\n";
  bool wakes = false;
  {
    const std::lock_guard guard{mutex_};
    if (waiting_.size() + line_.size() > mostWaiting) {
      ++leftOut_;
      return;
    }
    wakes = waiting_.empty() || (waiting_.size() < worthWriting && waiting_.size() + line_.size() >= worthWriting);
    waiting_ += line_;
  }
  if (wakes) wake_.notify_one();
}

void Log::write(const std::stop_token& stop) {
  for (;;) {
    const auto text = take(stop);
    if (text.empty()) return;
    writeAll(descriptor_, text);
  }
}

// Waits for a first line, then a moment for more; empty when it is to stop and nothing is left.
std::string Log::take(const std::stop_token& stop) {
  std::unique_lock lock{mutex_};
  wake_.wait(lock, stop, [this] { return !waiting_.empty(); });
  wake_.wait_for(lock, stop, gatheringTime, [this] { return waiting_.size() >= worthWriting; });
  auto text = std::exchange(waiting_, {});
  if (leftOut_ > 0) text += "{\"event\":\"log\",\"text\":\"" + std::to_string(leftOut_) + " lines were left out\"}\n";
  leftOut_ = 0;
  return text;
}

}  // namespace mivo::tally
