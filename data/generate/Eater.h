// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "adapters/time/TimeZone.h"
#include "data/generate/Dice.h"
#include "host/history/History.h"

namespace mivo::data {

/// How somebody lives from a day on.
struct Habit {
  std::chrono::local_days from;
  std::string zone;
  std::chrono::minutes lastMeal;  ///< after midnight, on a weekday
  std::chrono::hours goal;
  int skipsOneIn = 12;    ///< days without a fast; twice as often at weekends
  std::string note = {};  ///< for the first fast of this habit
};

/// Somebody who fasts from the last meal of most days. Weekends begin later and end earlier, some fasts are broken off,
/// one in a month or so lasts a day or two, one in half a year three; holidays bring days without any.
class Eater {
 public:
  Eater(std::vector<Habit> habitsByDate, std::uint64_t seed);

  /// The fasts that begin from the first habit's day on and have ended by `until`, in order, none overlapping.
  std::vector<host::FastRecord> fasts(Date until);

 private:
  void enter(std::size_t habit);
  bool skips(std::chrono::local_days day);
  std::chrono::sys_seconds start(std::chrono::local_days day);
  std::chrono::seconds length(std::chrono::local_days day);
  std::string note(std::chrono::seconds length);

  std::vector<Habit> habits;
  Dice dice;
  std::size_t current = 0;
  std::shared_ptr<const adapters::TimeZone> zone;
  std::chrono::local_days backFromHolidays{};
  bool isFirstOfHabit = true;
};

/// The habit in force on a day; the first one before it begins.
const Habit& habitOn(std::span<const Habit> habits, std::chrono::local_days day);

}  // namespace mivo::data
