// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "mivo/platform/Dependencies.h"
#include "mivo/streaks/Streak.h"
#include "mivo/streaks/Streaks.h"
#include "tests/histories/RandomHistories.h"
#include "tests/histories/ZoneRows.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using tests::Fasts;

// Every streak is made, every deadline asked for, and only then is anything compared.
std::vector<Streak> allStreaks(Fasts fasts, const StreakSettings& settings, const Calendar& days,
                               const Calendar& hours) {
  std::vector<Streak> found;
  const auto close = [&](Date start, Date end, std::int64_t count) {
    if (const auto streak = Streak::make(start, end, count, days)) found.push_back(*streak);
  };
  Date streakStart = fasts[0].start;
  std::int64_t counter = 0;
  for (std::size_t i = 0; i + 1 < fasts.size(); ++i) {
    const auto &previous = fasts[i], &next = fasts[i + 1];
    const auto deadline = hours.adding(CalendarComponent::hour, settings.maxBreakHours, previous.end);
    if (!deadline) {
      close(streakStart, previous.end, counter);
      streakStart = next.start;
      continue;
    }
    counter += 1;
    if (next.start < *deadline) {
      if (next.end == fasts.back().end) {
        close(streakStart, next.end, counter + 1);
        break;
      }
    } else {
      close(streakStart, previous.end, counter);
      streakStart = next.start;
      counter = 0;
    }
  }
  return found;
}

StreakLengths slowStreaks(Fasts fasts, const StreakSettings& settings, const Calendar& days, const Calendar& hours) {
  if (!settings.ignoreFastGoal)
    std::erase_if(fasts, [](const auto& fast) {
      return secondsSince1970(fast.end) - secondsSince1970(fast.start) < static_cast<double>(fast.goalSeconds);
    });
  std::ranges::stable_sort(fasts, std::less{}, &FinishedFastingDataEntry::start);
  if (fasts.empty()) return {0, 0};
  if (fasts.size() == 1) return {1, 1};
  StreakLengths lengths{0, 0};
  for (const Streak& streak : allStreaks(fasts, settings, days, hours)) {
    lengths.current = settings.countingEntity == StreakSettings::CountingEntity::days ? streak.days : streak.fasts;
    lengths.max = std::max(lengths.max, lengths.current);
  }
  return lengths;
}

class StreaksInZone : public testing::TestWithParam<tests::ZoneRow> {
 protected:
  StreaksInZone() {
    auto clients = std::make_shared<Dependencies>();
    clients->issueReporter = std::make_shared<tests::RecordedIssues>();
    scope = std::make_unique<DependencyScope>(clients);
  }
  std::unique_ptr<DependencyScope> scope;
};

StreakSettings randomSettings() {
  using enum StreakSettings::CountingEntity;
  return {*rc::gen::element(days, fasts), *rc::gen::arbitrary<bool>(),
          *rc::gen::element<std::int64_t>(24, 48, 8, 0, -2)};
}

TEST_P(StreaksInZone, equalMakingEveryStreak) {
  const auto calendar = tests::gregorianCalendar(GetParam().zone);
  EXPECT_TRUE(rc::check([&] {
    const auto settings = randomSettings();
    const auto fasts = *tests::histories(GetParam().around, settings.maxBreakHours);
    const auto found = streaks(FastsByStart{fasts}, settings, *calendar, *calendar);
    RC_ASSERT(found == slowStreaks(fasts, settings, *calendar, *calendar));
  }));
}

TEST_P(StreaksInZone, equalMakingEveryStreakAtTheEndOfTime) {
  const auto calendar = tests::gregorianCalendar(GetParam().zone);
  EXPECT_TRUE(rc::check([&] {
    const auto settings = randomSettings();
    const Date around = lastDate - Duration{*rc::gen::inRange(-20, 20) * secondsPerDay};
    const auto fasts = *tests::histories(around, settings.maxBreakHours);
    const auto found = streaks(FastsByStart{fasts}, settings, *calendar, *calendar);
    RC_ASSERT(found == slowStreaks(fasts, settings, *calendar, *calendar));
  }));
}

INSTANTIATE_TEST_SUITE_P(Rows, StreaksInZone, testing::ValuesIn(tests::zoneRows), tests::rowName);

}  // namespace
}  // namespace mivo
