// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "host/disk/DatabaseFile.h"
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

TEST(KilledCommand, losesNothingThatWasConfirmed) {
  const tests::TemporaryFolder folder;
  const std::string database = folder.path / "d";
  const auto begin = steady_clock::now();
  ASSERT_TRUE(isConfirmed(database, 0, milliseconds{60'000}));
  const auto usual = duration_cast<milliseconds>(steady_clock::now() - begin);
  constexpr int rounds = 200;
  std::set<int> confirmed{0};
  for (int round = 1; round <= rounds; ++round)
    if (isConfirmed(database, round, tally::test::killTime(round, usual))) confirmed.insert(round);
  EXPECT_LT(confirmed.size(), std::size_t{rounds}) << "no run was killed";

  for (const BodyWeightSample& sample : host::openDatabase(database).history().weights)
    confirmed.erase(static_cast<int>(std::lround(sample.weightInKg - 50)));
  EXPECT_TRUE(confirmed.empty()) << confirmed.size() << " lost";
  int files = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator{folder.path}) ++files;
  EXPECT_EQ(files, 1) << "something was set aside or left behind";
}

constexpr std::size_t weightsInAFile = 2000;

/// Weights by the minute of a day that no other round has.
std::string tableOf(int round) {
  std::string table = "date,weight_kg\n";
  for (std::size_t minute = 0; minute < weightsInAFile; ++minute)
    table += std::to_string(1'000'000'000 + round * 200'000 + static_cast<int>(minute) * 60) + ",81.4\n";
  return table;
}

TEST(KilledCommand, importsAFileAsAWholeOrNotAtAll) {
  const tests::TemporaryFolder folder;
  const std::string database = folder.path / "d", table = folder.path / "weights.csv";
  const auto isConfirmed = [&](int round, milliseconds time) {
    std::ofstream{table} << tableOf(round);
    tally::test::ChildProcess command{{MIVO_PROGRAM, "import", table, "--database", database}};
    return command.killAfter(time).ends_with('\n');
  };
  const auto begin = steady_clock::now();
  ASSERT_TRUE(isConfirmed(0, milliseconds{60'000}));
  const auto usual = duration_cast<milliseconds>(steady_clock::now() - begin);
  std::size_t confirmed = 1;
  constexpr int rounds = 40;
  for (int round = 1; round <= rounds; ++round) {
    confirmed += isConfirmed(round, tally::test::killTime(round, usual)) ? 1 : 0;
    const std::size_t there = host::openDatabase(database).history().weights.size();
    ASSERT_EQ(there % weightsInAFile, 0u) << "a part of a file";
    ASSERT_GE(there / weightsInAFile, confirmed) << "lost";
  }
  EXPECT_LT(confirmed, std::size_t{rounds}) << "no run was killed";
}

}  // namespace
}  // namespace mivo::cli
