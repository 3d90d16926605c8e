// SPDX-License-Identifier: MIT
#include "DateTimeChoice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "app/bridge/DateTimeText.h"
#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

constexpr int yearsBack = 100, daysAhead = 1, dayTotal = yearsBack * 366 + daysAhead + 1, lastDay = dayTotal - 1;
constexpr int hoursADay = 24, minutesAnHour = 60;
constexpr double secondsPerMinute = 60;
constexpr std::array<double, 5> clockChanges{0, secondsPerHour, -secondsPerHour, secondsPerHour / 2,
                                             -secondsPerHour / 2};

const Calendar& calendar() { return *dependency(&Dependencies::calendar); }

Date presentDate() { return dependency(&Dependencies::date)->now(); }

}  // namespace

DateTimeChoice::DateTimeChoice(QObject* parent) : QObject{parent} {
  setInstant(presentDate().time_since_epoch().count());
}

int DateTimeChoice::dayCount() const { return dayTotal; }

// The list ends with tomorrow, so that a time a little ahead can be told that it has not come yet.
std::optional<Date> DateTimeChoice::startOf(int day) const {
  return calendar().adding(CalendarComponent::day, day - (lastDay - daysAhead), today);
}

// The time of the clock; where that day's clock skips it, as long after the day's start as it would be.
Date DateTimeChoice::at(int day, double secondsOfDay) const {
  const Date start = startOf(day).value_or(today);
  const int minutes = static_cast<int>(secondsOfDay / secondsPerMinute);
  const Date end = calendar().endOfDay(start).value_or(start);
  const auto match = calendar().lastMatch({.hour = minutes / minutesAnHour, .minute = minutes % minutesAnHour}, end);
  return match && *match >= start ? *match : start + Duration{secondsOfDay};
}

double DateTimeChoice::instant() const {
  return at(chosenDay, chosenHour * secondsPerHour + chosenMinute * secondsPerMinute).time_since_epoch().count();
}

// What the clock shows differs from the time since the day's start where the clock was changed in between.
void DateTimeChoice::setInstant(double seconds) {
  today = calendar().startOfDay(presentDate()).value_or(presentDate());
  const Date date{Duration{std::floor(seconds / secondsPerMinute) * secondsPerMinute}};
  const auto ahead = calendar().calendarDatesBetween(today, date).value_or(1) - 1;
  chosenDay = static_cast<int>(std::clamp<std::int64_t>(lastDay - daysAhead + ahead, 0, lastDay));
  const double elapsed = secondsBetween(calendar().startOfDay(date).value_or(date), date);
  double shown = elapsed;
  for (const double change : clockChanges)
    if (elapsed + change >= 0 && elapsed + change < secondsPerDay && at(chosenDay, elapsed + change) == date) {
      shown = elapsed + change;
      break;
    }
  chosenHour = static_cast<int>(shown / secondsPerHour);
  chosenMinute = static_cast<int>(shown / secondsPerMinute) % minutesAnHour;
  Q_EMIT changed();
}

void DateTimeChoice::setDay(int day) {
  if (std::exchange(chosenDay, std::clamp(day, 0, lastDay)) != chosenDay) Q_EMIT changed();
}

void DateTimeChoice::setHour(int hour) {
  if (std::exchange(chosenHour, std::clamp(hour, 0, hoursADay - 1)) != chosenHour) Q_EMIT changed();
}

void DateTimeChoice::setMinute(int minute) {
  if (std::exchange(chosenMinute, std::clamp(minute, 0, minutesAnHour - 1)) != chosenMinute) Q_EMIT changed();
}

QString DateTimeChoice::text() const { return dateTimeText(Date{Duration{instant()}}); }

QString DateTimeChoice::dayText(int day, double) const {
  const auto start = startOf(day);
  return start ? qString(app::dayText(*start)) : QString{};
}

QString DateTimeChoice::clockText(int number) const {
  const auto& numbers = *dependency(&Dependencies::numberFormatter);
  const QString text = qString(numbers.string(std::int64_t{number}));
  return number < 10 ? qString(numbers.string(std::int64_t{0})) + text : text;
}

}  // namespace mivo::app
