// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

Date at(double hours) { return dateSince1970(1772222400 + hours * secondsPerHour); }  // from 2026-02-27 20:00 UTC on

host::FastRecord fast(std::uint64_t digit, double start, double end) {
  return {finishedFast({digit << 60 | 0x4000, digit}, at(start), at(end), 57600), ""};
}

class Repair : public testing::Test {
 protected:
  Repair() {
    host::HistoryChange change;
    change.addedFasts = {fast(1, 0, 16), fast(3, 15, 30), fast(4, 40, 50)};
    host::openDatabase(place.file("d")).apply(change);
  }

  Ran run(const std::string& arguments) const { return place.run(arguments + " --database d --locale en-DE"); }
  std::vector<host::FastRecord> fasts() const { return host::openDatabase(place.file("d")).history().fasts; }

  Workplace place;
};

const std::string trimmed =
    "- 3000  28 Feb 2026, 11:00 to 1 Mar 2026, 02:00, 15h 0m, goal 16h\n"
    "+ 3000  28 Feb 2026, 12:00 to 1 Mar 2026, 02:00, 14h 0m, goal 16h\n";

TEST_F(Repair, saysWhatItWouldChangeAndThenDoesIt) {
  const auto before = fasts();
  EXPECT_EQ(run("repair --dry-run").output, trimmed);
  EXPECT_EQ(fasts(), before);

  const Ran ran = run("repair");
  EXPECT_EQ(ran.status, 0) << ran.errors;
  EXPECT_EQ(ran.output, trimmed + "Overlapping fasts fixed (mivo undo takes it back)\n");
  EXPECT_EQ(fasts(), (std::vector{fast(1, 0, 16), fast(3, 16, 30), fast(4, 40, 50)}));
  EXPECT_EQ(run("repair").output, "No fasts overlap.\n");
  EXPECT_EQ(run("undo").output, "As before: " + trimmed.substr(2, trimmed.find('\n') - 1));
  EXPECT_EQ(fasts(), before);
}

TEST_F(Repair, makesOneOfTwoThatShareHalfOfTheirTime) {
  host::openDatabase(place.file("d")).apply(host::adding(fast(5, 42, 52)));
  EXPECT_EQ(run("repair --dry-run").output, trimmed +
                                                "- 4000  1 Mar 2026, 12:00 to 1 Mar 2026, 22:00, 10h 0m, goal 16h\n"
                                                "+ 4000  1 Mar 2026, 12:00 to 2 Mar 2026, 00:00, 12h 0m, goal 16h\n"
                                                "- 5000  1 Mar 2026, 14:00 to 2 Mar 2026, 00:00, 10h 0m, goal 16h\n");
}

TEST(RepairOfNothing, makesNoDatabase) {
  const Workplace place;
  EXPECT_EQ(place.run("repair").output, "No fasts overlap.\n");
  EXPECT_EQ(place.run("repair --locale de-DE").output, "Keine Überschneidungen.\n");
  EXPECT_FALSE(std::filesystem::exists(place.file("mivo")));
}

}  // namespace
}  // namespace mivo::cli
