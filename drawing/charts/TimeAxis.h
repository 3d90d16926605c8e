// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Calendar.h"
#include "mivo/platform/Formatters.h"

namespace mivo::drawing {

/// A label of a chart's time axis.
struct TimeAxisLabel {
  Date date;
  std::string text;
  bool isPresent = false;  ///< today
  /// The label stands in the middle of [date, until) where that is later, else it begins at its date.
  Date until;
  bool operator==(const TimeAxisLabel&) const = default;
};

template <RecordOf<TimeAxisLabel> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, text, isPresent, until] = record;
  visit("date", date);
  visit("text", text);
  visit("isPresent", isPresent);
  visit("until", until);
}

/// What a line chart of a range can be scrolled through: from its first point to the end of today, but at least as much
/// as is on screen at once.
DateInterval timeAxisDomain(TimeRange range, std::optional<Date> firstPoint, Date now, const Calendar& calendar);

/// Days in a week, the first days of weeks in a month, of months in a year. One question to the calendar a label.
std::vector<TimeAxisLabel> timeAxisLabels(TimeRange range, DateInterval visible, Date now, const Calendar& calendar,
                                          const DateFormatter& dates);

}  // namespace mivo::drawing
