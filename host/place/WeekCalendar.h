// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <optional>

#include "adapters/time/ZonedCalendar.h"
#include "mivo/platform/Calendar.h"

namespace mivo::host {

/// A calendar whose weeks begin on the day that the user chooses, at once: whoever holds it sees the new weeks.
///
/// Thread: any. A calculation that runs while the day is changed may see both; it has to be done anew.
class WeekCalendar final : public Calendar {
 public:
  /// The weeks of `usual` are those that hold while the user has chosen none.
  explicit WeekCalendar(const adapters::ZonedCalendar& usual);

  /// 1 = Sunday to 7 = Saturday (asserted); nothing for the usual one.
  void choose(std::optional<int> weekday) const;
  int usualFirstWeekday() const { return usual; }

  std::string_view identifier() const override { return present().identifier(); }
  std::string_view timeZone() const override { return present().timeZone(); }
  int firstWeekday() const override { return chosen; }
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

 private:
  static constexpr std::size_t daysOfWeek = 7;

  const Calendar& present() const { return *byFirstWeekday[static_cast<std::size_t>(chosen - 1)]; }

  std::array<std::shared_ptr<const adapters::ZonedCalendar>, daysOfWeek> byFirstWeekday;
  int usual;
  mutable std::atomic<int> chosen;
};

}  // namespace mivo::host
