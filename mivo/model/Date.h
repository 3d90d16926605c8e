// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cmath>

#include "mivo/model/Record.h"

namespace mivo {

/// Elapsed time in seconds, with fractions.
using Duration = std::chrono::duration<double>;

/// An instant: seconds since 1970-01-01T00:00:00Z, without leap seconds, as a double. At today's magnitude it resolves
/// about 0.2 microseconds.
using Date = std::chrono::sys_time<Duration>;

inline constexpr double secondsPerHour = 3600;
inline constexpr double secondsPerDay = 86400;

/// The instant that many seconds after 1970-01-01T00:00:00Z.
constexpr Date dateSince1970(double seconds) { return Date{Duration{seconds}}; }

/// Seconds since 1970-01-01T00:00:00Z; negative before it.
constexpr double secondsSince1970(Date date) { return date.time_since_epoch().count(); }

/// Seconds from `from` to `to`; negative where `to` is the earlier one.
constexpr double secondsBetween(Date from, Date to) { return (to - from).count(); }

/// The first and the last instant that the calendars answer for: year 1 up to the end of year 9999, in UTC.
inline constexpr Date firstDate = dateSince1970(-62135596800.0);
inline constexpr Date lastDate = dateSince1970(253402300799.0);

/// Whether a date is finite and lies within the years 1 to 9999. Everything that enters from outside is checked with
/// this once, at the border.
inline bool isRepresentable(Date date) { return date >= firstDate && date <= lastDate; }

/// A span of time. `start` is never later than `end` where a calendar made it; a day's `end` is the next day's start.
struct DateInterval {
  Date start, end;
  double duration() const { return secondsBetween(start, end); }
  bool operator==(const DateInterval&) const = default;
};

template <RecordOf<DateInterval> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [start, end] = record;
  visit("start", start);
  visit("end", end);
}

/// A span of time with both ends inside.
struct ClosedDateRange {
  Date lowerBound, upperBound;
  double duration() const { return secondsBetween(lowerBound, upperBound); }
  bool operator==(const ClosedDateRange&) const = default;
};

template <RecordOf<ClosedDateRange> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [lowerBound, upperBound] = record;
  visit("lowerBound", lowerBound);
  visit("upperBound", upperBound);
}

}  // namespace mivo
