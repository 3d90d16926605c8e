// SPDX-License-Identifier: MIT
#pragma once
#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

#include "tally/server/DateTexts.h"

namespace mivo::tally {

/// Which requests are logged; what the server says of itself always is.
struct LogDetail {
  enum class Level { info, warning, error };
  Level level = Level::info;  // all; those refused or failed; those failed here (a status of 500 and above)
  unsigned oneIn = 1;         // of those that went well, one of so many, which its line says
};

/// One JSON object a line, gathered and written by a thread of its own: a reader that stops reading stops no vote.
/// Where eight megabytes wait, further lines are left out, and their number is said once there is room again. A text is
/// written as UTF-8; what is not UTF-8 becomes U+FFFD.
class Log {
 public:
  struct Request {
    std::string_view method;  // cut at 32 bytes
    std::string_view target;  // cut at 200 bytes
    unsigned status = 0;
    std::chrono::microseconds duration{};
    std::string_view address;  // empty leaves it out
  };

  /// Writes to a file descriptor, which stays the caller's.
  explicit Log(int descriptor, LogDetail detail = {});
  /// Writes what is left, as long as somebody takes it within two seconds.
  ~Log();
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

  /// Thread of both: one, the same.
  void request(const Request& request);
  void event(std::string_view name, std::string_view text);
  /// Since the start. Thread: any.
  std::uint64_t linesLeftOut() const { return leftOut; }

 private:
  bool isWanted(unsigned status);
  void begin();
  void end();
  void write(const std::stop_token& stop);
  std::string take(const std::stop_token& stop);
  bool writeOut(const std::stop_token& stop, std::string_view text);
  ssize_t writePiece(std::string_view piece) const;

  int descriptor;
  bool isSocket;
  LogDetail detail;
  unsigned passedOver = 0;  // requests that went well, since the last that was logged
  DateTexts dates;
  std::string line;

  std::mutex mutex;
  std::condition_variable_any wake;
  std::string waiting;
  std::uint64_t toldLeftOut = 0;
  std::atomic<std::uint64_t> leftOut = 0;
  std::jthread writer;
};

}  // namespace mivo::tally
