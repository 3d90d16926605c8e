// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "mivo/model/Date.h"

namespace mivo {

enum class CalendarComponent { hour, day, month, year };

/// The fields a date must have to match; those left out may be anything. Months and days count from 1, weekdays from
/// 1 = Sunday.
struct MatchingComponents {
  std::optional<int> month{}, day{}, weekday{}, hour{}, minute{};
};

/// A calendar in a time zone. Every answer is missing where the date or the result lies outside the years 1 to 9999.
///
/// A day is the half-open span between the first instants of two consecutive dates, so days tile time: a date's first
/// instant is its 00:00, the first of the two where a clock change makes that double, the first instant after the gap
/// where one skips it. A date belongs to the day that contains it. The end of a day, week or month is the start of the
/// next.
///
/// Thread: any. Cost: an offset look-up, an order of magnitude less where the day is that of the last question.
class Calendar {
 public:
  virtual ~Calendar() = default;

  /// "gregorian", "buddhist", "hebrew", ...: the identifier in the Unicode locale database.
  virtual std::string_view identifier() const = 0;
  /// "Europe/Berlin": the name in the time-zone database.
  virtual std::string_view timeZone() const = 0;
  /// 1 = Sunday to 7 = Saturday.
  virtual int firstWeekday() const = 0;

  /// Adds `count` of a component, which may be negative. Days, months and years keep the wall-clock time (a day past
  /// the month's end becomes its last; a time that a clock change skips is read with the offset before it, one that it
  /// makes double is the first); hours are elapsed time.
  virtual std::optional<Date> adding(CalendarComponent component, std::int64_t count, Date date) const = 0;

  /// The latest date strictly earlier than `date` that has these fields, with all smaller ones zero.
  virtual std::optional<Date> lastMatch(const MatchingComponents& components, Date before) const = 0;

  virtual std::optional<Date> startOfDay(Date date) const = 0;
  virtual std::optional<Date> endOfDay(Date date) const = 0;
  virtual std::optional<Date> startOfWeek(Date date) const = 0;
  virtual std::optional<Date> endOfWeek(Date date) const = 0;
  virtual std::optional<Date> startOfMonth(Date date) const = 0;
  virtual std::optional<Date> endOfMonth(Date date) const = 0;

  /// How many calendar dates lie between two dates, both counted: 1 for two instants of one date; 0 or less where
  /// `dateTwo` is of an earlier date. A date that the zone skipped counts.
  virtual std::optional<std::int64_t> calendarDatesBetween(Date dateOne, Date dateTwo) const = 0;

  /// A Gregorian calendar in this one's time zone, its week beginning on Sunday.
  virtual std::shared_ptr<const Calendar> gregorian() const = 0;
};

inline constexpr std::string_view gregorianIdentifier = "gregorian";

}  // namespace mivo
