// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <ostream>
#include <random>
#include <string>
#include <tuple>

#include "adapters/icu/Calendars.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "mivo/calculations/ChartPeriods.h"
#include "mivo/calculations/RangeStarts.h"
#include "tests/histories/ZoneRows.h"
#include "tests/support/CLibraryZone.h"
#include "tests/support/Instants.h"

namespace mivo {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using tests::CLibraryZone;
using tests::text;

constexpr int firstWeekday = 7;

class RangesIn : public testing::TestWithParam<std::tuple<tests::ZoneRow, std::string>> {
 protected:
  const std::shared_ptr<const adapters::ZonedCalendar> calendar =
      adapters::makeCalendar(std::get<1>(GetParam()), adapters::loadTimeZone(std::get<0>(GetParam()).zone).value(),
                             firstWeekday)
          .value();
  const CLibraryZone clocks{std::get<0>(GetParam()).zone};

  bool beginsRange(TimeRange range, local_days date) const {
    const auto fields = calendar->dates()->fields(date);
    if (range == TimeRange::week) return weekday{date}.c_encoding() + 1 == firstWeekday;
    return fields.day == 1 && !fields.isLeapMonth && (range == TimeRange::month || fields.month == 1);
  }

  bool beginsPeriod(TimeRange range, local_days date) const {
    if (range == TimeRange::week) return true;
    if (range == TimeRange::month) return beginsRange(TimeRange::week, date);
    return calendar->dates()->fields(date).day == 1;
  }

  // Hour by hour from `from`, backwards or forwards, to the next instant at which the C library's date becomes one of
  // which `begins` holds; a date that the zone skipped counts as begun with the one after it. `from` itself is not one.
  Date nextBorder(sys_seconds from, hours step, const std::function<bool(local_days)>& begins) const {
    for (sys_seconds hour = floor<hours>(from) + (step < 0h ? 1h : 0h);; hour += step) {
      const local_days before = clocks.date(hour - 1h), after = clocks.date(hour);
      for (local_days date = before + days{1}; date <= after; date += days{1}) {
        if (!begins(date)) continue;
        const sys_seconds border =
            tests::firstThat(hour - 1h, hour, [&](sys_seconds at) { return clocks.date(at) >= date; });
        if (step < 0h ? border < from : border > from) return border;
      }
    }
  }

  // Instants around the zone's odd days, and in the years after them; some of them at the very start of an hour.
  Date someInstant() {
    const Date around = std::get<0>(GetParam()).around;
    const double spread = std::bernoulli_distribution{}(random) ? 3 : 3000;
    const double seconds = std::uniform_real_distribution<double>{-spread, spread}(random)*secondsPerDay;
    const Date instant = around + Duration{std::floor(seconds)};
    return std::bernoulli_distribution{0.3}(random) ? Date{floor<hours>(instant)} : instant;
  }

  std::mt19937 random{20260301};
};

constexpr int instants = 8;

TEST_P(RangesIn, beginWhereAWalkBackwardsFindsThem) {
  for (int i = 0; i < instants; ++i) {
    const Date now = someInstant();
    const sys_seconds second = floor<seconds>(now);
    for (const TimeRange range : allTimeRanges) {
      const auto begins = [&](local_days date) { return beginsRange(range, date); };
      const auto starts = rangeStarts(range, *calendar, now);
      ASSERT_TRUE(starts) << text(now);
      EXPECT_EQ(text(starts->thisStart), text(nextBorder(second, -1h, begins))) << text(now) << ' ' << rawValue(range);
      const sys_seconds thisStart = floor<seconds>(starts->thisStart);
      EXPECT_EQ(text(starts->lastStart), text(nextBorder(thisStart, -1h, begins)))
          << text(now) << ' ' << rawValue(range);
      const auto atItsVeryStart = rangeStarts(range, *calendar, starts->thisStart);
      EXPECT_EQ(atItsVeryStart->thisStart, starts->lastStart) << text(now) << ' ' << rawValue(range);
    }
  }
}

TEST_P(RangesIn, haveBarsThatAWalkFinds) {
  for (int i = 0; i < instants; ++i) {
    const Date date = someInstant();
    const sys_seconds second = floor<seconds>(date);
    for (const TimeRange range : allTimeRanges) {
      const auto begins = [&](local_days day) { return beginsPeriod(range, day); };
      const auto period = chartPeriod(date, range, *calendar);
      ASSERT_TRUE(period) << text(date);
      EXPECT_EQ(text(period->start), text(nextBorder(second + 1s, -1h, begins)))
          << text(date) << ' ' << rawValue(range);
      EXPECT_EQ(text(period->end), text(nextBorder(second, 1h, begins))) << text(date) << ' ' << rawValue(range);
    }
  }
}

TEST_P(RangesIn, haveBarsWithoutGaps) {
  const Date around = std::get<0>(GetParam()).around;
  const Date first = around - Duration{500 * secondsPerDay}, last = around + Duration{500 * secondsPerDay};
  for (const TimeRange range : allTimeRanges) {
    const auto periods = chartPeriods(first, last, range, *calendar);
    ASSERT_FALSE(periods.empty());
    EXPECT_LE(periods.front().start, first);
    EXPECT_GT(periods.back().end, last);
    for (std::size_t bar = 1; bar < periods.size(); ++bar) {
      ASSERT_EQ(periods[bar].start, periods[bar - 1].end) << text(periods[bar].start);
      ASSERT_LT(periods[bar].start, periods[bar].end) << text(periods[bar].start);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, RangesIn,
                         testing::Combine(testing::ValuesIn(tests::zoneRows),
                                          testing::Values("gregorian", "buddhist", "hebrew", "islamic-umalqura",
                                                          "persian")),
                         [](const auto& row) {
                           std::string name = std::get<0>(row.param).name + ('_' + std::get<1>(row.param));
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
}  // namespace mivo
