// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/platform/Calendar.h"
#include "mivo/platform/Client.h"

namespace mivo {

/// Fasts in a row, from the start of the first to the end of the last.
struct Streak {
  Date start, end;
  std::int64_t days = 0;   ///< calendar dates that it touches, both ends counted
  std::int64_t fasts = 0;  ///< fasts in it

  /// None where it does not start strictly before it ends, and where the calendar has no answer, which is reported as
  /// "no calendar dates". The days are counted on the current dependencies' `streakCalendar`.
  static std::optional<Streak> make(Date start, Date end, std::int64_t fasts);
  /// The same with the calendar given.
  static std::optional<Streak> make(Date start, Date end, std::int64_t fasts, const Calendar& calendar);

  bool operator==(const Streak&) const = default;
};

template <RecordOf<Streak> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [start, end, days, fasts] = record;
  visit("start", start);
  visit("end", end);
  visit("days", days);
  visit("fasts", fasts);
}

/// The calendar that streak days are counted on: `calendar` itself where it is Gregorian, else a Gregorian one in the
/// zone of `currentCalendar`.
Client<Calendar> streakCalendar(const Client<Calendar>& calendar, const Client<Calendar>& currentCalendar);

}  // namespace mivo
