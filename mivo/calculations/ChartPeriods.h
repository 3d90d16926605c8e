// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Calendar.h"

namespace mivo {

/// What one bar covers under a range: the calendar day of a date for week, its week for month, its month for year. The
/// end is the first instant of the next one. None where the calendar has no answer.
std::optional<DateInterval> chartPeriod(Date date, TimeRange range, const Calendar& calendar);

/// The periods from that of `first` to that of `last`, one after the other without gaps; those that the calendar cannot
/// form, near the years 1 and 9999, are left out. None where `last` is before `first`. Two calendar calls a period.
std::vector<DateInterval> chartPeriods(Date first, Date last, TimeRange range, const Calendar& calendar);

}  // namespace mivo
