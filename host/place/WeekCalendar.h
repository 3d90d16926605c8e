// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include "adapters/time/ZonedCalendar.h"
#include "mivo/platform/Calendar.h"

namespace mivo::host {

/// A calendar whose weeks begin on the day that the user chooses, in the time zone that they are in, at once: whoever
/// holds it sees the new weeks and days.
///
/// Thread: any, but changes one at a time. A calculation that runs while one is made may see both; it has to be done
/// anew.
class WeekCalendar final : public Calendar {
 public:
  /// The weeks of `usual` are those that hold while the user has chosen none.
  explicit WeekCalendar(const adapters::ZonedCalendar& usual);

  /// 1 = Sunday to 7 = Saturday (asserted); nothing for the usual one.
  void choose(std::optional<int> weekday);
  void moveTo(std::shared_ptr<const adapters::TimeZone> zone);
  int usualFirstWeekday() const { return usual; }

  std::string_view identifier() const override { return present().identifier(); }
  std::string_view timeZone() const override { return present().timeZone(); }
  int firstWeekday() const override { return present().firstWeekday(); }
  std::optional<Date> adding(CalendarComponent component, std::int64_t count, Date date) const override;
  std::optional<Date> lastMatch(const MatchingComponents& components, Date before) const override;
  std::optional<Date> startOfDay(Date date) const override { return present().startOfDay(date); }
  std::optional<Date> endOfDay(Date date) const override { return present().endOfDay(date); }
  std::optional<Date> startOfWeek(Date date) const override { return present().startOfWeek(date); }
  std::optional<Date> endOfWeek(Date date) const override { return present().endOfWeek(date); }
  std::optional<Date> startOfMonth(Date date) const override { return present().startOfMonth(date); }
  std::optional<Date> endOfMonth(Date date) const override { return present().endOfMonth(date); }
  std::optional<std::int64_t> calendarDatesBetween(Date dateOne, Date dateTwo) const override;
  std::shared_ptr<const Calendar> gregorian() const override { return present().gregorian(); }

  /// The calendar that answers now; it lives as long as this one.
  const adapters::ZonedCalendar& present() const { return *shown.load(); }

 private:
  void show(std::shared_ptr<const adapters::TimeZone> zone, int firstWeekday);

  int usual;
  std::vector<std::shared_ptr<const adapters::ZonedCalendar>> made;  // all stay: somebody may be reading one
  std::atomic<const adapters::ZonedCalendar*> shown;
};

}  // namespace mivo::host
