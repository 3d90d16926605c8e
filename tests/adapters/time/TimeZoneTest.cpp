// SPDX-License-Identifier: MIT
#include "adapters/time/TimeZone.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "tests/support/Instants.h"
#include "tests/support/Threads.h"

namespace mivo::adapters {
namespace {

using namespace std::chrono;
using Kind = WallTimeInstants::Kind;

sys_seconds second(const char* text) { return floor<seconds>(tests::utc(text)); }
local_seconds wall(const char* text) { return local_seconds{second(text).time_since_epoch()}; }
std::string text(sys_seconds instant) { return tests::text(Date{instant}); }

struct OffsetRow {
  const char *name, *zone, *instant;
  double hours;
};
void PrintTo(const OffsetRow& row, std::ostream* out) { *out << row.name; }
class OffsetInForce : public testing::TestWithParam<OffsetRow> {};

TEST_P(OffsetInForce, isThatOfTheLaw) {
  const auto zone = loadTimeZone(GetParam().zone).value();
  EXPECT_EQ(duration<double>{zone->offset(second(GetParam().instant))}.count() / 3600, GetParam().hours);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OffsetInForce,
    testing::Values(OffsetRow{"mexicoKeepsNoSummerTime", "America/Mexico_City", "2026-07-15 12:00", -6},
                    OffsetRow{"egyptHasSummerTimeAgain", "Africa/Cairo", "2026-07-15 12:00", 3},
                    OffsetRow{"kazakhstanIsOneZone", "Asia/Almaty", "2026-07-15 12:00", 5},
                    OffsetRow{"moroccoInRamadan", "Africa/Casablanca", "2026-03-01 12:00", 0},
                    OffsetRow{"moroccoElse", "Africa/Casablanca", "2026-07-15 12:00", 1},
                    OffsetRow{"aRuleHasNoEnd", "Europe/Berlin", "9999-07-15 12:00", 2},
                    OffsetRow{"beforeStandardTime", "Asia/Kolkata", "0001-01-02 00:00", 21208.0 / 3600}),
    [](const auto& row) { return std::string{row.param.name}; });

struct WallTimeRow {
  const char *name, *zone, *wall;
  Kind kind;
  const char *first, *second, *firstInstant;
};
void PrintTo(const WallTimeRow& row, std::ostream* out) { *out << row.name; }
class WallTime : public testing::TestWithParam<WallTimeRow> {};

TEST_P(WallTime, isUniqueRepeatedOrSkipped) {
  const WallTimeRow& row = GetParam();
  const auto zone = loadTimeZone(row.zone).value();
  const WallTimeInstants found = zone->instants(wall(row.wall));
  EXPECT_EQ(found.kind, row.kind);
  EXPECT_EQ(text(found.first), row.first);
  EXPECT_EQ(text(found.second), row.second);
  EXPECT_EQ(text(zone->firstInstant(wall(row.wall))), row.firstInstant);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WallTime,
    testing::Values(WallTimeRow{"plain", "Europe/Berlin", "2026-07-01 12:00", Kind::unique, "2026-07-01 10:00:00",
                                "2026-07-01 10:00:00", "2026-07-01 10:00:00"},
                    WallTimeRow{"inTheGap", "Europe/Berlin", "2026-03-29 02:30", Kind::skipped, "2026-03-29 01:30:00",
                                "2026-03-29 00:30:00", "2026-03-29 01:00:00"},
                    WallTimeRow{"gapBegins", "Europe/Berlin", "2026-03-29 02:00", Kind::skipped, "2026-03-29 01:00:00",
                                "2026-03-29 00:00:00", "2026-03-29 01:00:00"},
                    WallTimeRow{"gapEnds", "Europe/Berlin", "2026-03-29 03:00", Kind::unique, "2026-03-29 01:00:00",
                                "2026-03-29 01:00:00", "2026-03-29 01:00:00"},
                    WallTimeRow{"shownTwice", "Europe/Berlin", "2026-10-25 02:00", Kind::repeated,
                                "2026-10-25 00:00:00", "2026-10-25 01:00:00", "2026-10-25 00:00:00"},
                    WallTimeRow{"shownTwiceNoMore", "Europe/Berlin", "2026-10-25 03:00", Kind::unique,
                                "2026-10-25 02:00:00", "2026-10-25 02:00:00", "2026-10-25 02:00:00"},
                    WallTimeRow{"onTheMissingDate", "Pacific/Apia", "2011-12-30 08:00", Kind::skipped,
                                "2011-12-30 18:00:00", "2011-12-29 18:00:00", "2011-12-30 10:00:00"},
                    WallTimeRow{"farFutureGap", "America/New_York", "8026-03-08 02:30", Kind::skipped,
                                "8026-03-08 07:30:00", "8026-03-08 06:30:00", "8026-03-08 07:00:00"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(TimeZone, answersTheSameFromManyThreads) {
  const auto zone = loadTimeZone("Europe/London").value();
  const auto sumOfDays = [&zone](hours begin) {
    std::int64_t sum = 0;
    for (sys_seconds at = sys_seconds{begin}; at < sys_days{2026y / 1 / 1}; at += hours{1001})
      sum += zone->startOfDay(at).time_since_epoch().count() + zone->day(at).time_since_epoch().count();
    return sum;
  };
  std::vector<std::int64_t> expected, found(4);
  for (int i = 0; i < 4; ++i) expected.push_back(sumOfDays(hours{i * 7}));
  {
    tests::Threads threads;
    for (std::size_t i = 0; i < found.size(); ++i)
      threads.start([&, i] { found[i] = sumOfDays(hours{static_cast<int>(i) * 7}); });
  }
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace mivo::adapters
