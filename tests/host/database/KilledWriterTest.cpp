// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "host/disk/DatabaseFile.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

HistoryChange adding(std::uint64_t id, std::string note = "") {
  const Date start = dateSince1970(1.77e9 + static_cast<double>(id) * secondsPerDay);
  HistoryChange change;
  change.addedFasts = {{finishedFast({1, id}, start, start + Duration{57600}, 57600), std::move(note)}};
  return change;
}

// Adds fasts until it is killed, and confirms each one as the app would: after the call has returned.
[[noreturn]] void recordForever(const std::filesystem::path& file, std::uint64_t id, int confirmations) {
  Database database = openDatabase(file);
  for (;; ++id) {
    database.apply(adding(id));
    if (::write(confirmations, &id, sizeof id) != sizeof id) ::_exit(1);
  }
}

TEST(KilledWriter, losesNothingThatWasConfirmed) {
  tests::TemporaryFolder folder;
  const auto file = folder.path / "mivo.sqlite";
  std::set<std::uint64_t> confirmed;
  for (std::uint64_t round = 0; round < 40; ++round) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t writer = ::fork();
    if (writer == 0) recordForever(file, round * 1'000'000 + 1, ends[1]);
    ::close(ends[1]);
    std::uint64_t id = 0;
    // Killed after a few confirmations, a different number each time, wherever it is by then.
    for (std::uint64_t count = 0; count < 1 + round % 7 && ::read(ends[0], &id, sizeof id) == sizeof id; ++count)
      confirmed.insert(id);
    ::kill(writer, SIGKILL);
    ::waitpid(writer, nullptr, 0);
    while (::read(ends[0], &id, sizeof id) == sizeof id) confirmed.insert(id);
    ::close(ends[0]);
  }
  ASSERT_GE(confirmed.size(), 40u);
  for (const auto& record : openDatabase(file).history().fasts) confirmed.erase(record.fast.id.low);
  EXPECT_TRUE(confirmed.empty()) << confirmed.size() << " lost";
}

// A limit on the size of files stands in for a full disk: the same call fails, with room for nothing more.
TEST(FullDisk, isSaidAndLosesNothing) {
  tests::TemporaryFolder folder;
  const auto file = folder.path / "mivo.sqlite";
  openDatabase(file).apply(adding(1));
  const pid_t writer = ::fork();
  if (writer == 0) {
    ::signal(SIGXFSZ, SIG_IGN);
    Database database = openDatabase(file);
    const rlimit limit{64 * 1024, 64 * 1024};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    try {
      database.apply(adding(2, std::string(1'000'000, 'x')));
    } catch (const DatabaseError& error) {
      ::_exit(error.kind == DatabaseError::Kind::diskFull ? 42 : 1);
    }
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(writer, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 42);
  const auto fasts = openDatabase(file).history().fasts;
  ASSERT_EQ(fasts.size(), 1u);
  EXPECT_EQ(fasts[0].fast.id, (UUID{1, 1}));
}

}  // namespace
}  // namespace mivo::host
