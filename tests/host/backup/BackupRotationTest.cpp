// SPDX-License-Identifier: MIT
#include "host/backup/BackupRotation.h"

#include <gtest/gtest.h>

#include <string>

#include "host/backup/BackupName.h"

namespace mivo::host {
namespace {

constexpr Date noon = dateSince1970(1772366400);  // 2026-03-01T12:00:00Z, a Sunday

Date daysBefore(double days) { return noon - Duration{days * secondsPerDay}; }

std::string keptOf(const std::vector<Date>& dates) {
  std::string kept;
  for (const Date date : keptBackups(dates)) kept += backupKey(date).substr(0, 13) + ' ';
  return kept;
}

TEST(BackupRotation, keepsTheNewestOfEachPeriodThatHasOne) {
  EXPECT_EQ(keptOf({}), "");
  EXPECT_EQ(keptOf({daysBefore(0.6), daysBefore(0.1), noon, daysBefore(0.52)}), "2026-03-01T12 2026-02-28T23 ");
  EXPECT_EQ(keptOf({noon, daysBefore(400), daysBefore(401), daysBefore(800)}),
            "2026-03-01T12 2025-01-25T12 2025-01-24T12 2023-12-22T12 ")
      << "a pause cost one";
  EXPECT_EQ(keptOf({daysBefore(-20'000), noon, daysBefore(1)}), "2080-12-02T12 2026-03-01T12 2026-02-28T12 ")
      << "a clock that ran ahead cost one";
}

// Each day one more, rotated each day: what stays does not depend on when it was looked at.
TEST(BackupRotation, keepsSevenDaysFourWeeksAndTwelveMonths) {
  std::vector<Date> grown;
  for (int day = 999; day >= 0; --day) {
    grown.push_back(daysBefore(day));
    grown = keptBackups(grown);
  }
  EXPECT_EQ(keptOf(grown),
            "2026-03-01T12 2026-02-28T12 2026-02-27T12 2026-02-26T12 2026-02-25T12 2026-02-24T12 2026-02-23T12 "
            "2026-02-22T12 2026-02-15T12 2026-02-08T12 "
            "2026-01-31T12 2025-12-31T12 2025-11-30T12 2025-10-31T12 2025-09-30T12 "
            "2025-08-31T12 2025-07-31T12 2025-06-30T12 2025-05-31T12 2025-04-30T12 ");
}

}  // namespace
}  // namespace mivo::host
