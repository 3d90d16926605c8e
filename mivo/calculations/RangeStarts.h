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

}  // namespace mivo
