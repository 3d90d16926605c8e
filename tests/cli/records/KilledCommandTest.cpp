// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <set>
#include <string>

#include "host/database/Database.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::cli {
namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

struct Started {
  pid_t process;
  int output;
};

/// `mivo weight add`, with a weight that names the round: 50.001 kg in the first one.
Started startRecording(const std::string& database, int round) {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return {-1, -1};
  const std::string weight = std::to_string(50 + 0.001 * round);
  const pid_t process = ::fork();
  if (process == 0) {
    ::dup2(ends[1], STDOUT_FILENO);
    ::execl(MIVO_PROGRAM, "mivo", "weight", "add", weight.c_str(), "--database", database.c_str(), nullptr);
    ::_exit(127);
  }
  ::close(ends[1]);
  return {process, ends[0]};
}

/// Whether the command has said all of its answer before the time was over; then it is killed, wherever it is.
bool isConfirmed(const Started& started, milliseconds time) {
  pollfd answer{started.output, POLLIN, 0};
  ::poll(&answer, 1, static_cast<int>(time.count()));
  ::kill(started.process, SIGKILL);
  ::waitpid(started.process, nullptr, 0);
  std::string said;
  char bytes[256];
  for (ssize_t count; (count = ::read(started.output, bytes, sizeof bytes)) > 0;)
    said.append(bytes, static_cast<std::size_t>(count));
  ::close(started.output);
  return said.ends_with('\n');
}

// Killed after anything from no time at all to what a whole run takes, so that every part of it is hit.
TEST(KilledCommand, losesNothingThatWasConfirmed) {
  const tests::TemporaryFolder folder;
  const std::string database = folder.path / "d";
  const auto begin = steady_clock::now();
  ASSERT_TRUE(isConfirmed(startRecording(database, 0), milliseconds{60'000}));
  const auto usual = duration_cast<milliseconds>(steady_clock::now() - begin);
  constexpr int rounds = 200;
  std::set<int> confirmed{0};
  for (int round = 1; round <= rounds; ++round)
    if (isConfirmed(startRecording(database, round), usual * (round % 20) / 16)) confirmed.insert(round);
  EXPECT_GT(confirmed.size(), 1u) << "no run was left the time to end";
  EXPECT_LT(confirmed.size(), std::size_t{rounds}) << "no run was killed";

  for (const BodyWeightSample& sample : host::Database{database}.history().weights)
    confirmed.erase(static_cast<int>(std::lround((sample.weightInKg - 50) * 1000)));
  EXPECT_TRUE(confirmed.empty()) << confirmed.size() << " lost";
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator{folder.path}) ++files;
  EXPECT_EQ(files, 1) << "something was set aside or left behind";
}

}  // namespace
}  // namespace mivo::cli
