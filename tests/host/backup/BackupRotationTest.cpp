// SPDX-License-Identifier: MIT
#include "host/backup/BackupRotation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>

#include "host/backup/BackupName.h"

namespace mivo::host {
namespace {

using namespace std::chrono_literals;
using std::chrono::days;

constexpr Date noon = std::chrono::sys_days{2026y / 3 / 1} + 12h;  // of a Sunday

struct RotationRow {
  const char* name;
  std::vector<Date> dates;
  std::vector<const char*> kept;
};
void PrintTo(const RotationRow& row, std::ostream* out) { *out << row.name; }
class BackupRotation : public testing::TestWithParam<RotationRow> {};

TEST_P(BackupRotation, keepsTheNewestOfEachPeriod) {
  std::vector<std::string> kept;
  for (const Date date : keptBackups(GetParam().dates)) kept.push_back(backupKey(date).substr(0, 13));
  EXPECT_THAT(kept, testing::ElementsAreArray(GetParam().kept));
}

std::vector<Date> everyDay(int count) {
  std::vector<Date> dates;
  for (int day = 0; day < count; ++day) dates.push_back(noon - days{day});
  return dates;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BackupRotation,
    testing::Values(RotationRow{"none", {}, {}},
                    RotationRow{
                        "newestOfADay", {noon - 13h, noon - 1h, noon, noon - 12h}, {"2026-03-01T12", "2026-02-28T23"}},
                    RotationRow{"yearsOfDays",
                                everyDay(1000),
                                {"2026-03-01T12", "2026-02-28T12", "2026-02-27T12", "2026-02-26T12", "2026-02-25T12",
                                 "2026-02-24T12", "2026-02-23T12", "2026-02-22T12", "2026-02-15T12", "2026-02-08T12",
                                 "2026-01-31T12", "2025-12-31T12", "2025-11-30T12", "2025-10-31T12", "2025-09-30T12",
                                 "2025-08-31T12", "2025-07-31T12", "2025-06-30T12", "2025-05-31T12", "2025-04-30T12"}},
                    RotationRow{"aPauseCostsNone",
                                {noon, noon - days{400}, noon - days{401}, noon - days{800}},
                                {"2026-03-01T12", "2025-01-25T12", "2025-01-24T12", "2023-12-22T12"}},
                    RotationRow{"aClockThatRanAhead",
                                {noon + days{20'000}, noon, noon - days{1}},
                                {"2080-12-02T12", "2026-03-01T12", "2026-02-28T12"}},
                    RotationRow{"before1970",
                                {dateSince1970(-1), dateSince1970(-2), dateSince1970(0)},
                                {"1970-01-01T00", "1969-12-31T23"}}),
    [](const auto& row) { return std::string{row.param.name}; });

// Each day one more, rotated each day: what stays does not depend on when it was looked at.
TEST(BackupRotation, keepsAYearAsItGrows) {
  std::vector<Date> grown;
  for (int day = 999; day >= 0; --day) {
    grown.push_back(noon - days{day});
    grown = keptBackups(grown);
    ASSERT_LE(grown.size(), 7u + 4 + 12);
  }
  EXPECT_EQ(grown, keptBackups(everyDay(1000)));
}

}  // namespace
}  // namespace mivo::host
