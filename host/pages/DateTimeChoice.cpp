// SPDX-License-Identifier: MIT
#include "host/pages/DateTimeChoice.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <optional>

#include "host/dates/DateText.h"
#include "host/fasting/Fasting.h"
#include "mivo/fasting/GoalTime.h"
#include "mivo/pages/DateTimeText.h"

namespace mivo::host {

using namespace std::chrono;

namespace {

constexpr int yearsBack = 100, daysAhead = 1, dayTotal = yearsBack * 366 + daysAhead + 1, lastDay = dayTotal - 1;
constexpr int hoursADay = 24, minutesAnHour = 60;
constexpr double secondsPerMinute = 60;

std::optional<Date> startOf(const DateTimeEntry& entry, int day, const Calendar& calendar) {
  return calendar.adding(CalendarComponent::day, day - (lastDay - daysAhead), entry.today);
}

DateTimeEntry withTime(DateTimeEntry entry, double secondsOfDay) {
  entry.hour = static_cast<int>(secondsOfDay / secondsPerHour);
  entry.minute = static_cast<int>(secondsOfDay / secondsPerMinute) % minutesAnHour;
  return entry;
}

/// The date of an instant in the common calendar, as the zone of `calendar` counts it: from the last New Year, which
/// begins within a day of 00:00 UTC. Nothing outside the years that a calendar has.
std::optional<local_days> commonDay(Date date, const Calendar& calendar) {
  const auto common = calendar.gregorian();
  const auto end = common->endOfDay(date);
  const auto newYear = end ? common->lastMatch({.month = 1, .day = 1}, *end) : std::nullopt;
  const auto count = newYear ? common->calendarDatesBetween(*newYear, date) : std::nullopt;
  if (!count) return std::nullopt;
  constexpr Duration halfAYear{183 * secondsPerDay};
  const year_month_day summer{floor<days>(*newYear + halfAYear)};
  return local_days{summer.year() / 1 / 1} + days{*count - 1};
}

/// "2026-06-09 13:24": as the zone's clocks show it, in the common calendar.
std::string typedText(Date date, const PageClients& clients) {
  const auto day = commonDay(date, clients.calendar);
  if (!day) return {};
  const DateTimeEntry shown = dateTimeEntry(date, clients);
  const auto wall = *day + hours{shown.hour} + minutes{shown.minute};
  const std::string text = rfc3339(dateSince1970(static_cast<double>(seconds{wall.time_since_epoch()}.count())));
  return text.substr(0, 10) + " " + text.substr(11, 5);
}

std::optional<DateTimeEntry> withTypedTime(const DateTimeEntry& entry, std::string_view text) {
  const auto seconds = text.find(':') == std::string_view::npos ? std::nullopt : parseGoal(text);
  if (!seconds || static_cast<double>(*seconds) >= secondsPerDay) return std::nullopt;
  return withTime(entry, static_cast<double>(*seconds));
}

std::optional<DateTimeEntry> withInstant(std::optional<Date> date, const PageClients& clients) {
  if (!date) return std::nullopt;
  const DateTimeEntry typed = dateTimeEntry(*date, clients);
  const bool isOfTheList = clients.calendar.calendarDatesBetween(*date, instantOf(typed, clients.calendar)) == 1;
  return isOfTheList ? std::optional{typed} : std::nullopt;
}

}  // namespace

int dayCount() { return dayTotal; }

// Until the clock is changed it shows the time since the day's start; from then on, what the day has left.
DateTimeEntry dateTimeEntry(Date date, const PageClients& clients) {
  const Calendar& calendar = clients.calendar;
  date = startOfMinute(date);
  DateTimeEntry entry{.today = calendar.startOfDay(clients.now).value_or(clients.now)};
  const auto ahead = calendar.calendarDatesBetween(entry.today, date).value_or(1) - 1;
  entry.day = static_cast<int>(std::clamp<std::int64_t>(lastDay - daysAhead + ahead, 0, lastDay));
  const double passed = secondsBetween(calendar.startOfDay(date).value_or(date), date);
  const double left = secondsBetween(date, calendar.endOfDay(date).value_or(date + Duration{secondsPerDay - passed}));
  const DateTimeEntry afterChange = withTime(entry, std::max(0.0, secondsPerDay - left));
  const DateTimeEntry beforeChange = withTime(entry, std::min(passed, secondsPerDay - secondsPerMinute));
  const auto isRead = [&](const DateTimeEntry& read) { return instantOf(read, calendar) == date; };
  return isRead(afterChange) || !isRead(beforeChange) ? afterChange : beforeChange;
}

DateTimeEntry withDay(DateTimeEntry entry, int day) {
  entry.day = std::clamp(day, 0, lastDay);
  return entry;
}

DateTimeEntry withHour(DateTimeEntry entry, int hour) {
  entry.hour = std::clamp(hour, 0, hoursADay - 1);
  return entry;
}

DateTimeEntry withMinute(DateTimeEntry entry, int minute) {
  entry.minute = std::clamp(minute, 0, minutesAnHour - 1);
  return entry;
}

Date instantOf(const DateTimeEntry& entry, const Calendar& calendar) {
  const Date start = startOf(entry, entry.day, calendar).value_or(entry.today);
  const Date end = calendar.endOfDay(start).value_or(start);
  const auto match = calendar.lastMatch({.hour = entry.hour, .minute = entry.minute}, end);
  if (match && *match >= start) return *match;
  return start + Duration{entry.hour * secondsPerHour + entry.minute * secondsPerMinute};
}

std::optional<DateTimeEntry> withTyped(const DateTimeEntry& entry, std::string_view text, const PageClients& clients) {
  if (const auto ofThatDay = withTypedTime(entry, text)) return ofThatDay;
  const auto read = parseDateText(text);
  if (!read) return std::nullopt;
  if (read->offset) return withInstant(instant(*read), clients);
  const Date now = dateTimeEntry(clients.now, clients).today;
  const auto today = commonDay(now, clients.calendar);
  const auto typedDay = floor<days>(read->wallTime);
  const std::int64_t place = today ? lastDay - daysAhead + (typedDay - *today).count() : -1;
  if (place < 0 || place > lastDay) return std::nullopt;
  const DateTimeEntry typed{.today = now, .day = static_cast<int>(place), .hour = entry.hour, .minute = entry.minute};
  return read->hasTime ? withTime(typed, static_cast<double>((read->wallTime - typedDay).count())) : typed;
}

std::string dayTextOf(const DateTimeEntry& entry, int day, const PageClients& clients) {
  const auto start = startOf(entry, day, clients.calendar);
  return start ? dayText(*start, clients) : std::string{};
}

// Any date will do whose clock shows the hour: days may lack one.
std::string hourTextOf(const DateTimeEntry& entry, int hour, const PageClients& clients) {
  const auto at = [&](int wanted) {
    return clients.calendar.lastMatch({.hour = wanted, .minute = 0}, entry.today).value_or(entry.today);
  };
  constexpr int afternoon = 13;
  const std::string digits = twoDigits(afternoon, clients.numbers);
  const bool hasTwelveHours = clockText(at(afternoon), clients).find(digits) == std::string::npos;
  if (!hasTwelveHours) return twoDigits(hour, clients.numbers);
  return clients.dates.string(at(hour), "j").value_or(twoDigits(hour, clients.numbers));
}

DateTimeChoice composeDateTimeChoice(const DateTimeEntry& entry, const PageClients& clients) {
  const auto& texts = clients.texts;
  DateTimeChoice choice;
  choice.instant = instantOf(entry, clients.calendar);
  choice.today = entry.today;
  choice.text = dateTimeText(choice.instant, clients);
  choice.dayCount = dayTotal;
  choice.todayPlace = lastDay - daysAhead;
  choice.day = entry.day;
  choice.hour = entry.hour;
  choice.minute = entry.minute;
  choice.daySpoken = texts.text("Day") + ", " + dayTextOf(entry, entry.day, clients);
  choice.hourSpoken = texts.text("Hour") + ", " + hourTextOf(entry, entry.hour, clients);
  choice.minuteSpoken = texts.text("Minute") + ", " + twoDigits(entry.minute, clients.numbers);
  choice.doneLabel = texts.text("Done");
  choice.typeLabel = texts.text("Type the date");
  choice.typed = typedText(choice.instant, clients);
  choice.typedProblem = filledIn(texts.text("Type a day up to tomorrow and a time, such as {1}."), {choice.typed});
  return choice;
}

}  // namespace mivo::host
