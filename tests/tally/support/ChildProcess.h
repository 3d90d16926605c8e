// SPDX-License-Identifier: MIT
#pragma once
#include <sys/types.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace mivo::tally::test {

/// A program started by a test, whose output (both kinds) is gathered, and which ends with the object.
class ChildProcess {
 public:
  explicit ChildProcess(const std::vector<std::string>& command);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  pid_t id() const { return processId; }
  void send(int signal) const;
  /// SIGKILL, and gone when this returns.
  void kill();
  /// SIGKILL once so much time is over, wherever the program is by then; all that it has written.
  std::string killAfter(std::chrono::milliseconds time);
  /// The exit status; throws where the program does not end within 30 seconds.
  int wait();
  std::string output() const;
  /// The first line that holds `text`, of those written or still to come; throws, with the output, where none does
  /// within 30 seconds or before the program ends.
  std::string waitForLine(std::string_view text) const;

 private:
  void gather(int descriptor);

  pid_t processId = -1;
  mutable std::mutex mutex;
  mutable std::condition_variable changed;
  std::string written;
  bool hasEnded = false;
  std::jthread reader;
};

/// When to kill, of twenty rounds each at another place: from no time at all to more than what a run took at first. The
/// last one may end, however slow the machine has become.
std::chrono::milliseconds killTime(int round, std::chrono::milliseconds usual);

}  // namespace mivo::tally::test
