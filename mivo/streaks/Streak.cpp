// SPDX-License-Identifier: MIT
#include "mivo/streaks/Streak.h"

#include "mivo/platform/Dependencies.h"

namespace mivo {

std::optional<Streak> Streak::make(Date start, Date end, std::int64_t fasts) {
  const auto calendar = streakCalendar(dependency(&Dependencies::calendar), dependency(&Dependencies::currentCalendar));
  return make(start, end, fasts, *calendar);
}

std::optional<Streak> Streak::make(Date start, Date end, std::int64_t fasts, const Calendar& calendar) {
  const bool isForward = start < end;
  if (!isForward) return std::nullopt;
  const auto days = calendar.calendarDatesBetween(start, end);
  if (!days) {
    reportIssue("no calendar dates");
    return std::nullopt;
  }
  return Streak{start, end, *days, fasts};
}

Client<Calendar> streakCalendar(const Client<Calendar>& calendar, const Client<Calendar>& currentCalendar) {
  return calendar->identifier() == gregorianIdentifier ? calendar : currentCalendar->gregorian();
}

}  // namespace mivo
