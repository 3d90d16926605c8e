// SPDX-License-Identifier: MIT
#include "host/pages/RemindersPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

RemindersPage page(const ReminderSettings& settings) {
  const tests::Pages pages;
  return composeReminders(settings, pages.at(tests::utc("2026-03-01 12:00")));
}

TEST(RemindersPage, switchesEachOnAlone) {
  const auto switches = [](const ReminderSettings& settings) {
    const RemindersPage shown = page(settings);
    return std::pair{shown.tellsGoal, shown.tellsEatingWindow};
  };
  EXPECT_EQ(switches({}), std::pair(false, false));
  EXPECT_EQ(switches({.tellsGoal = true}), std::pair(true, false));
  EXPECT_EQ(switches({.tellsEatingWindow = true}), std::pair(false, true));
}

TEST(RemindersPage, givesEachLengthBackAsItsChoice) {
  const Choice shown = page({}).eatingWindow;
  EXPECT_THAT(shown.options, testing::ElementsAre("Same as last time", "1h", "2h", "3h", "4h", "5h", "6h", "7h", "8h",
                                                  "9h", "10h", "11h", "12h"));
  EXPECT_EQ(shown.value, "Same as last time");
  EXPECT_EQ(page({.eatingWindowHours = 8}).eatingWindow.value, "8h");
  for (std::int64_t place = 0; place < std::ssize(shown.options); ++place)
    EXPECT_EQ(page({.eatingWindowHours = eatingWindowHoursAt(place)}).eatingWindow.chosen, place);
}

}  // namespace
}  // namespace mivo::host
