// SPDX-License-Identifier: MIT
#include "host/reminders/ReminderText.h"

#include <gtest/gtest.h>

#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

TEST(ReminderText, saysWhatWasReachedAndWhen) {
  const tests::Pages pages;
  const PageClients clients = pages.at(tests::utc("2026-03-02 12:00"));
  EXPECT_EQ(reminderText({ReminderKind::goal, {}, tests::utc("2026-03-02 11:30"), 59400}, clients),
            (ReminderText{"Goal reached", "Your fast reached its goal of 16h 30m at 11:30."}));
  EXPECT_EQ(reminderText({ReminderKind::eatingWindow, {}, tests::utc("2026-03-02 12:00"), 28800}, clients),
            (ReminderText{"Eating window", "Your eating window reached 8h at 12:00."}));
}

}  // namespace
}  // namespace mivo::host
