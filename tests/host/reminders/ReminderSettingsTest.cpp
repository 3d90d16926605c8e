// SPDX-License-Identifier: MIT
#include "host/reminders/ReminderSettings.h"

#include <gtest/gtest.h>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

TEST(ReminderSettings, areOffUntilChosen) {
  const tests::MemoryDefaults defaults;
  EXPECT_FALSE(reminderSettings(defaults).isAny());
  setTellsGoal(defaults, true);
  EXPECT_EQ(reminderSettings(defaults), ReminderSettings{.tellsGoal = true});
  setTellsEatingWindow(defaults, true);
  setTellsGoal(defaults, false);
  setEatingWindowHours(defaults, 8);
  EXPECT_EQ(reminderSettings(defaults), (ReminderSettings{.tellsEatingWindow = true, .eatingWindowHours = 8}));
  setEatingWindowHours(defaults, std::nullopt);
  EXPECT_EQ(reminderSettings(defaults), ReminderSettings{.tellsEatingWindow = true});
}

TEST(ReminderSettings, takeNoLengthThatNobodyOffers) {
  const tests::MemoryDefaults defaults;
  for (const std::int64_t hours : {std::int64_t{-8}, std::int64_t{0}, std::int64_t{13}, std::int64_t{1} << 60}) {
    setEatingWindowHours(defaults, hours);
    EXPECT_EQ(reminderSettings(defaults).eatingWindowHours, std::nullopt) << hours;
  }
}

TEST(ReminderSettings, rememberTheFastOfEachKind) {
  const tests::MemoryDefaults defaults;
  EXPECT_EQ(toldFast(defaults, ReminderKind::goal), std::nullopt);
  const UUID one{1, 2}, other{3, 4};
  setToldFast(defaults, ReminderKind::goal, one);
  EXPECT_EQ(toldFast(defaults, ReminderKind::eatingWindow), std::nullopt);
  setToldFast(defaults, ReminderKind::eatingWindow, other);
  EXPECT_EQ(toldFast(defaults, ReminderKind::goal), one);
  EXPECT_EQ(toldFast(defaults, ReminderKind::eatingWindow), other);
}

}  // namespace
}  // namespace mivo::host
