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

/// The periods from that of `first` to that of `last`, one after the other; those that the calendar cannot form, such
/// as the first and the last of the years 1 to 9999, are left out, and there are no others without gaps. None where
/// `last` is before `first`. One calendar call a period, and for each left out two a day; none for what lies before the
/// year 1.
std::vector<DateInterval> chartPeriods(Date first, Date last, TimeRange range, const Calendar& calendar);

}  // namespace mivo
