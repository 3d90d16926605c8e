// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "mivo/model/Date.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Calendar.h"

namespace mivo {

/// Where this week, month or year begins, and where the whole one before it does.
struct RangeStarts {
  Date thisStart, lastStart;
  bool operator==(const RangeStarts&) const = default;
};

/// The latest first instants of a range strictly before `now`, and before `now` a range earlier. So at exactly 00:00 of
/// the first weekday, this week is still the one that has just ended.
///
/// None where the calendar has no answer, which is near the years 1 and 9999. Cost: three calendar calls. Thread: any.
std::optional<RangeStarts> rangeStarts(TimeRange range, const Calendar& calendar, Date now);

/// Where this range ends for its averages: with today, whose rest counts as eating; now where the calendar cannot tell.
Date endOfToday(const Calendar& calendar, Date now);

/// What the averages of this range are divided by: the days from its start to the end of today, 1/24 less or more for a
/// day with a clock change. Times an average it gives the range's total. None where there are no range starts.
std::optional<double> daysOfThisRange(TimeRange range, const Calendar& calendar, Date now);

}  // namespace mivo
