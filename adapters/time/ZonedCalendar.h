// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "adapters/time/DateSystem.h"
#include "adapters/time/TimeZone.h"
#include "mivo/platform/Calendar.h"

namespace mivo::adapters {

/// A calendar whose days are a time zone's and whose months and years are a date system's.
///
///     const auto berlin = TimeZone::load("Europe/Berlin").value();
///     const auto calendar = ZonedCalendar::gregorian(berlin, 2);
///
/// Thread: any.
class ZonedCalendar final : public Calendar, public std::enable_shared_from_this<ZonedCalendar> {
 public:
  /// firstWeekday   1 = Sunday to 7 = Saturday (asserted)
  ZonedCalendar(std::shared_ptr<const TimeZone> zone, std::shared_ptr<const DateSystem> dates, int firstWeekday);

  static std::shared_ptr<const ZonedCalendar> gregorian(std::shared_ptr<const TimeZone> zone, int firstWeekday);

  const std::shared_ptr<const TimeZone>& zone() const { return timeZoneRules; }
  const std::shared_ptr<const DateSystem>& dates() const { return dateSystem; }

  std::string_view identifier() const override { return dateSystem->identifier(); }
  std::string_view timeZone() const override { return timeZoneRules->name(); }
  int firstWeekday() const override { return weekBegin; }

  std::optional<Date> adding(CalendarComponent component, std::int64_t count, Date date) const override;
  std::optional<Date> lastMatch(const MatchingComponents& components, Date before) const override;
  std::optional<Date> startOfDay(Date date) const override;
  std::optional<Date> endOfDay(Date date) const override;
  std::optional<Date> startOfWeek(Date date) const override;
  std::optional<Date> endOfWeek(Date date) const override;
  std::optional<Date> startOfMonth(Date date) const override;
  std::optional<Date> endOfMonth(Date date) const override;
  std::optional<std::int64_t> calendarDatesBetween(Date dateOne, Date dateTwo) const override;
  std::shared_ptr<const Calendar> gregorian() const override;

 private:
  std::chrono::local_days firstOfWeek(std::chrono::local_days day) const;
  std::chrono::local_days firstOfMonth(std::chrono::local_days day) const;
  std::optional<std::chrono::local_days> movedDay(CalendarComponent component, std::int64_t count,
                                                  std::chrono::local_days day) const;

  std::shared_ptr<const TimeZone> timeZoneRules;
  std::shared_ptr<const DateSystem> dateSystem;
  int weekBegin;
};

/// The whole second that a date lies in. Dates in the years 1 to 9999 only.
inline std::chrono::sys_seconds wholeSecond(Date date) { return std::chrono::floor<std::chrono::seconds>(date); }

}  // namespace mivo::adapters
