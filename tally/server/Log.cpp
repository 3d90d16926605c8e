// SPDX-License-Identifier: MIT
#include "tally/server/Log.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <nlohmann/json.hpp>
#include <utility>

namespace mivo::tally {
namespace {

constexpr std::size_t mostWaiting = 8 << 20;
constexpr std::size_t worthWriting = 64 << 10;
constexpr std::size_t longestTarget = 200;
constexpr std::size_t longestMethod = 32;
constexpr std::chrono::milliseconds gatheringTime{50};

void appendNumber(std::string& out, std::int64_t number) {
  std::array<char, 20> digits{};
  out.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

bool isPlain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

void appendEscaped(std::string& out, std::string_view text) {
  if (std::ranges::all_of(text, isPlain)) {
    out += text;
    return;
  }
  const auto quoted = nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  out.append(quoted, 1, quoted.size() - 2);
}

void appendText(std::string& out, std::string_view name, std::string_view text) {
  out.append(",\"").append(name).append("\":\"");
  appendEscaped(out, text);
  out += '"';
}

// So much a pipe that is ready takes without blocking.
constexpr std::size_t pieceSize = 4096;

bool isASocket(int descriptor) {
  int type = 0;
  socklen_t size = sizeof type;
  return ::getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0;
}

bool isWritable(int descriptor, std::chrono::milliseconds patience) {
  pollfd wanted{.fd = descriptor, .events = POLLOUT, .revents = 0};
  return ::poll(&wanted, 1, static_cast<int>(patience.count())) > 0;
}

}  // namespace

Log::Log(int output, LogDetail wanted)
    : descriptor(output),
      isSocket(isASocket(output)),
      detail(wanted),
      writer([this](const std::stop_token& stop) { write(stop); }) {}

Log::~Log() = default;

bool Log::isWanted(unsigned status) {
  if (status >= 500) return true;
  if (status >= 400) return detail.level != LogDetail::Level::error;
  if (detail.level != LogDetail::Level::info || ++passedOver < detail.oneIn) return false;
  passedOver = 0;
  return true;
}

void Log::request(const Request& request) {
  if (!isWanted(request.status)) return;
  begin();
  appendText(line, "method", request.method.substr(0, longestMethod));
  appendText(line, "target", request.target.substr(0, longestTarget));
  line += ",\"status\":";
  appendNumber(line, request.status);
  line += ",\"microseconds\":";
  appendNumber(line, request.duration.count());
  if (!request.address.empty()) appendText(line, "address", request.address);
  if (detail.oneIn > 1 && request.status < 400) {
    line += ",\"oneIn\":";
    appendNumber(line, detail.oneIn);
  }
  end();
}

void Log::event(std::string_view name, std::string_view text) {
  begin();
  appendText(line, "event", name);
  appendText(line, "text", text);
  end();
}

void Log::begin() {
  line = "{\"time\":\"";
  line += dates.log(std::chrono::system_clock::now());
  line += '"';
}

void Log::end() {
  line += "}\n";
  bool wakes = false;
  {
    const std::lock_guard guard{mutex};
    if (waiting.size() + line.size() > mostWaiting) {
      ++leftOut;
      return;
    }
    wakes = waiting.empty() || (waiting.size() < worthWriting && waiting.size() + line.size() >= worthWriting);
    waiting += line;
  }
  if (wakes) wake.notify_one();
}

void Log::write(const std::stop_token& stop) {
  for (;;) {
    const auto text = take(stop);
    if (text.empty()) return;
    if (!writeOut(stop, text) && stop.stop_requested()) return;
  }
}

// Waits for a first line, then a moment for more; empty when it is to stop and nothing is left.
std::string Log::take(const std::stop_token& stop) {
  std::unique_lock lock{mutex};
  wake.wait(lock, stop, [this] { return !waiting.empty(); });
  wake.wait_for(lock, stop, gatheringTime, [this] { return waiting.size() >= worthWriting; });
  auto text = std::exchange(waiting, {});
  const auto untold = leftOut - std::exchange(toldLeftOut, leftOut);
  if (untold > 0) text += "{\"event\":\"log\",\"text\":\"" + std::to_string(untold) + " lines were left out\"}\n";
  return text;
}

// The number of bytes that were taken, or -1 and errno. A socket may be ready for less than a piece.
ssize_t Log::writePiece(std::string_view piece) const {
  if (isSocket) return ::send(descriptor, piece.data(), piece.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
  return ::write(descriptor, piece.data(), piece.size());
}

// A reader that stopped reading must not keep the server from ending, nor may one whose end does not block lose lines.
bool Log::writeOut(const std::stop_token& stop, std::string_view text) {
  constexpr std::chrono::milliseconds look{50};
  constexpr std::chrono::seconds lastPatience{2};
  auto patienceLeft = std::chrono::milliseconds{lastPatience};
  while (!text.empty() && patienceLeft.count() > 0) {
    if (!isWritable(descriptor, look)) {
      if (stop.stop_requested()) patienceLeft -= look;
      continue;
    }
    const auto written = writePiece(text.substr(0, pieceSize));
    if (written == -1 && (errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK)) continue;
    if (written == -1) break;  // there is nobody left to tell
    text.remove_prefix(static_cast<std::size_t>(written));
    patienceLeft = lastPatience;
  }
  leftOut += static_cast<std::uint64_t>(std::ranges::count(text, '\n'));
  return text.empty();
}

}  // namespace mivo::tally
