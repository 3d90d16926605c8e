// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace mivo {

/// The range that trends and charts show.
enum class TimeRange { week, month, year };

inline constexpr std::array allTimeRanges{TimeRange::week, TimeRange::month, TimeRange::year};

/// "week", "month", "year": the raw value, as files and flags spell it.
std::string_view rawValue(TimeRange range);

/// The word put into sentences, in English; also its key in the message catalogues.
std::string_view displayString(TimeRange range);

/// How many days before now the line charts reach back: 90, 365, 3650.
double totalDaysOnXAxis(TimeRange range);

/// The date-format skeleton of the labels under the bars of a range: short weekday, short month and day, short month.
std::string_view xAxixDateFormat(TimeRange range);

}  // namespace mivo
