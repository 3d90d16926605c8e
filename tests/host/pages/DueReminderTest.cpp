// SPDX-License-Identifier: MIT
#include "host/pages/DueReminder.h"

#include <gtest/gtest.h>

#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

TEST(DueReminder, isTheNextOneInWordsAndByANameOfItsOwn) {
  const tests::Pages pages;
  const PageClients clients = pages.at(tests::utc("2026-03-02 12:00"));
  const Date due = tests::utc("2026-03-02 11:30");
  EXPECT_EQ(composeDueReminder(Reminder{ReminderKind::goal, {.high = 1, .low = 2}, due, 59400}, clients),
            (DueReminder{"goal-00000000-0000-0001-0000-000000000002", due, "Goal reached",
                         "Your fast reached its goal of 16h 30m at 11:30."}));
  const DueReminder window =
      composeDueReminder(Reminder{ReminderKind::eatingWindow, {.high = 1, .low = 2}, due, 28800}, clients);
  EXPECT_EQ(window.id, "eatingWindow-00000000-0000-0001-0000-000000000002");
  EXPECT_EQ(composeDueReminder(std::nullopt, clients), DueReminder{});
}

}  // namespace
}  // namespace mivo::host
