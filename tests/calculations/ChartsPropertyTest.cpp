// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "adapters/icu/DateFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "mivo/calculations/ChartPeriods.h"
#include "mivo/calculations/DayBars.h"
#include "mivo/calculations/UnionOfFasts.h"
#include "tests/histories/CalendarRows.h"
#include "tests/histories/RandomHistories.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using tests::Fasts;

class DayBarsIn : public testing::TestWithParam<tests::CalendarRow> {};

double secondsWithin(const Fasts& stretches, Date from, Date to) {
  double seconds = 0;
  for (const auto& stretch : stretches)
    seconds += std::max(0.0, secondsBetween(std::max(stretch.start, from), std::min(stretch.end, to)));
  return seconds;
}

Fasts stretchesOf(Fasts fasts) {
  std::erase_if(fasts, [](const auto& fast) { return fast.end < fast.start; });
  std::ranges::stable_sort(fasts, std::less{}, &FinishedFastingDataEntry::start);
  return unionOfFasts(fasts);
}

TEST_P(DayBarsIn, tileTheTimeFromTheFirstFastToNow) {
  const auto calendar = GetParam().calendar();
  const Date around = GetParam().zone.around;
  const auto formatter = adapters::dateFormatter(adapters::UserLocale::parse("en_US").value(), *calendar);
  EXPECT_TRUE(rc::check([&] {
    const auto stretches = stretchesOf(*tests::histories(around));
    const Date now = around + Duration{*rc::gen::inRange(-20 * 86400, 20 * 86400) * 1.0};
    const auto range = *rc::gen::elementOf(std::vector(allTimeRanges.begin(), allTimeRanges.end()));
    const auto [fasting, eating] = dayBars(stretches, range, now, *calendar, *formatter, tests::CountingUUIDs{});

    RC_ASSERT(fasting.data->empty() == (stretches.empty() || stretches.front().start > now));
    RC_ASSERT(eating.data->size() == fasting.data->size());
    if (fasting.data->empty()) return;
    const Date first = stretches.front().start;
    double fastedInAll = 0, eatenInAll = 0;
    for (std::size_t i = 0; i < fasting.data->size(); ++i) {
      const auto &bar = (*fasting.data)[i], &other = (*eating.data)[i];
      const auto [start, end] = bar.dateInterval;
      if (i > 0) RC_ASSERT(start == (*fasting.data)[i - 1].dateInterval.end);
      RC_ASSERT(chartPeriod(start, range, *calendar) == bar.dateInterval);
      RC_ASSERT(other.dateInterval == bar.dateInterval);
      RC_ASSERT(bar.xAxisLabel == formatter->string(start, xAxixDateFormat(range)).value());
      RC_ASSERT(other.xAxisLabel == bar.xAxisLabel);
      RC_ASSERT(bar.value >= 0 && bar.value <= 1 && other.value >= 0 && other.value <= 1);
      const double fasted = bar.value * fasting.maxTime, eaten = other.value * eating.maxTime;
      RC_ASSERT(std::abs(fasted - secondsWithin(stretches, start, std::min(end, now))) < 1e-3);
      RC_ASSERT(std::abs(fasted + eaten - std::max(0.0, secondsBetween(std::max(start, first), std::min(end, now)))) <
                1e-3);
      fastedInAll += fasted;
      eatenInAll += eaten;
    }
    RC_ASSERT(fasting.data->front().dateInterval.start <= first);
    RC_ASSERT(fasting.data->front().dateInterval.end > first);
    RC_ASSERT(fasting.data->back().dateInterval.start <= now);
    RC_ASSERT(fasting.data->back().dateInterval.end > now);
    RC_ASSERT(std::abs(fastedInAll - secondsWithin(stretches, first, now)) < 1e-2);
    RC_ASSERT(std::abs(fastedInAll + eatenInAll - secondsBetween(first, now)) < 1e-2);
  }));
}

INSTANTIATE_TEST_SUITE_P(Rows, DayBarsIn, testing::ValuesIn(tests::calendarRows()), tests::calendarRowName);

}  // namespace
}  // namespace mivo
