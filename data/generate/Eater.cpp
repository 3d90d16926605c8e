// SPDX-License-Identifier: MIT
#include "data/generate/Eater.h"

#include <algorithm>
#include <array>
#include <utility>

#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::data {
namespace {

using namespace std::chrono;

constexpr hours leastEatingTime{4};

bool isWeekendNight(local_days day) {
  const weekday name{day};
  return name == Friday || name == Saturday;
}

Date date(sys_seconds instant) { return Date{instant}; }

}  // namespace

const Habit& habitOn(std::span<const Habit> habits, local_days day) {
  const auto next = std::ranges::upper_bound(habits, day, {}, &Habit::from);
  return next == habits.begin() ? *next : *(next - 1);
}

Eater::Eater(std::vector<Habit> habitsByDate, std::uint64_t seed) : habits{std::move(habitsByDate)}, dice{seed} {
  enter(0);
}

void Eater::enter(std::size_t habit) {
  current = habit;
  zone = adapters::loadTimeZone(habits[habit].zone).value();
  isFirstOfHabit = true;
}

std::vector<host::FastRecord> Eater::fasts(Date until) {
  std::vector<host::FastRecord> records;
  Date lastEnd = firstDate;
  for (local_days day = habits.front().from;; day += days{1}) {
    if (current + 1 < habits.size() && habits[current + 1].from <= day) enter(current + 1);
    const Date begin = date(start(day));
    if (begin > until) return records;
    if (skips(day) || begin < lastEnd + leastEatingTime) continue;
    const seconds howLong = length(day);
    const Date end = begin + howLong;
    if (end > until) return records;
    const auto goalSeconds = seconds{habits[current].goal}.count();
    records.push_back({finishedFast(dice.uuid(), begin, end, goalSeconds), note(howLong)});
    lastEnd = end;
  }
}

bool Eater::skips(local_days day) {
  if (dice.oneIn(260)) backFromHolidays = day + days{dice.between(4, 11)};
  if (day < backFromHolidays && !dice.oneIn(4)) return true;
  return dice.oneIn(isWeekendNight(day) ? std::max(habits[current].skipsOneIn / 2, 1) : habits[current].skipsOneIn);
}

sys_seconds Eater::start(local_days day) {
  const minutes later = isWeekendNight(day) ? minutes{55} : minutes{0};
  const seconds scatter{dice.bell(seconds{minutes{24}}.count())};
  return zone->firstInstant(day + habits[current].lastMeal + later + scatter);
}

seconds Eater::length(local_days day) {
  const seconds goal = habits[current].goal;
  if (dice.oneIn(330)) return hours{72} + minutes{dice.between(-90, 300)};
  if (dice.oneIn(55)) {
    const minutes scatter{
        dice.between(-60, 150)};  // drawn in a statement of its own: compilers order operands differently
    return (dice.oneIn(3) ? hours{36} : hours{24}) + scatter;
  }
  if (dice.oneIn(11)) return goal - minutes{dice.between(50, 290)};  // broken off
  const seconds usual = goal + minutes{42} + seconds{dice.bell(seconds{minutes{35}}.count())};
  return isWeekendNight(day) ? usual - minutes{50} : usual;
}

std::string Eater::note(seconds howLong) {
  static constexpr std::array remarks{"slept well",         "hungry in the evening",      "headache, drank more water",
                                      "easy today",         "long walk instead of lunch", "coffee only",
                                      "dinner with friends"};
  if (std::exchange(isFirstOfHabit, false) && !habits[current].note.empty()) return habits[current].note;
  if (howLong > hours{30}) return "tea and broth";
  if (!dice.oneIn(14)) return {};
  return remarks[static_cast<std::size_t>(dice.between(0, remarks.size() - 1))];
}

}  // namespace mivo::data
