// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// A date and time that is being chosen from three lists: days up to tomorrow, hours and minutes of the clock, in the
/// user's calendar and time zone.
struct DateTimeEntry {
  Date today;  ///< its start; the day before the last one of the list
  int day = 0, hour = 0, minute = 0;
  bool operator==(const DateTimeEntry&) const = default;
};

/// How many days there are to choose from: a hundred years. The last one is tomorrow, so that a time a little ahead can
/// be told that it has not come yet.
int dayCount();

/// A date as clocks showed it, to the minute; one before or after the days of the list on the nearest of them.
DateTimeEntry dateTimeEntry(Date date, const PageClients& clients);

/// Another place in one of the lists; the nearest one for a place that is none.
DateTimeEntry withDay(DateTimeEntry entry, int day);
DateTimeEntry withHour(DateTimeEntry entry, int hour);
DateTimeEntry withMinute(DateTimeEntry entry, int minute);

/// The instant of what is chosen: of a time that clocks show twice the first one, and for one that they skip the first
/// instant after the gap.
Date instantOf(const DateTimeEntry& entry, const Calendar& calendar);

/// Another date as people type it: "2026-03-01 12:00", "2026-03-01" for that day at the hour chosen, "12:00" for that
/// time of the day chosen. Nothing for any other text, and for a day that is none of the list.
std::optional<DateTimeEntry> withTyped(const DateTimeEntry& entry, std::string_view text, const PageClients& clients);

/// "Tue 9 Jun": a day of the list.
std::string dayTextOf(const DateTimeEntry& entry, int day, const PageClients& clients);

/// "19", or "7 PM" where clocks have twelve hours.
std::string hourTextOf(const DateTimeEntry& entry, int hour, const PageClients& clients);

/// The sheet that chooses it, but for the entries of its lists, which are composed where they are seen.
struct DateTimeChoice {
  Date instant;
  Date today;
  std::string text;  ///< "Today, 13:24"
  int dayCount = 0;
  int todayPlace = 0;  ///< in the list of days
  int day = 0, hour = 0, minute = 0;
  std::string daySpoken, hourSpoken, minuteSpoken;  ///< "Hour, 13"
  std::string doneLabel;                            ///< "Done"
  std::string typeLabel;                            ///< "Type the date"
  std::string typed;                                ///< "2026-06-09 13:24": what stands in the field to type it
  std::string typedProblem;                         ///< what is said of a text that is no date
  bool operator==(const DateTimeChoice&) const = default;
};

template <RecordOf<DateTimeChoice> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [instant, today, text, dayCount, todayPlace, day, hour, minute, daySpoken, hourSpoken, minuteSpoken, doneLabel,
         typeLabel, typed, typedProblem] = record;
  visit("instant", instant);
  visit("today", today);
  visit("text", text);
  visit("dayCount", dayCount);
  visit("todayPlace", todayPlace);
  visit("day", day);
  visit("hour", hour);
  visit("minute", minute);
  visit("daySpoken", daySpoken);
  visit("hourSpoken", hourSpoken);
  visit("minuteSpoken", minuteSpoken);
  visit("doneLabel", doneLabel);
  visit("typeLabel", typeLabel);
  visit("typed", typed);
  visit("typedProblem", typedProblem);
}

DateTimeChoice composeDateTimeChoice(const DateTimeEntry& entry, const PageClients& clients);

}  // namespace mivo::host
