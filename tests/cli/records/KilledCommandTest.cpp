// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <set>
#include <string>

#include "host/database/Database.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/ChildProcess.h"

namespace mivo::cli {
namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// Records a weight that names the round, 51 kg in the first one, and is killed once the time is over, wherever it
/// is by then. Whether all of its answer was said before.
bool isConfirmed(const std::string& database, int round, milliseconds time) {
  tally::test::ChildProcess command{
      {MIVO_PROGRAM, "weight", "add", std::to_string(50 + round) + "kg", "--database", database}};
  return command.killAfter(time).ends_with('\n');
}

// Killed after anything from no time at all to what a whole run takes, so that every part of it is hit.
TEST(KilledCommand, losesNothingThatWasConfirmed) {
  const tests::TemporaryFolder folder;
  const std::string database = folder.path / "d";
  const auto begin = steady_clock::now();
  ASSERT_TRUE(isConfirmed(database, 0, milliseconds{60'000}));
  const auto usual = duration_cast<milliseconds>(steady_clock::now() - begin);
  constexpr int rounds = 200;
  std::set<int> confirmed{0};
  for (int round = 1; round <= rounds; ++round)
    if (isConfirmed(database, round, usual * (round % 20) / 16)) confirmed.insert(round);
  EXPECT_GT(confirmed.size(), 1u) << "no run was left the time to end";
  EXPECT_LT(confirmed.size(), std::size_t{rounds}) << "no run was killed";

  for (const BodyWeightSample& sample : host::Database{database}.history().weights)
    confirmed.erase(static_cast<int>(std::lround(sample.weightInKg - 50)));
  EXPECT_TRUE(confirmed.empty()) << confirmed.size() << " lost";
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator{folder.path}) ++files;
  EXPECT_EQ(files, 1) << "something was set aside or left behind";
}

}  // namespace
}  // namespace mivo::cli
