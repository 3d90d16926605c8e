// SPDX-License-Identifier: MIT
#include "mivo/streaks/Streak.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "mivo/store/Print.h"
#include "mivo/streaks/TrendsFastingEntry.h"
#include "tests/histories/ZoneRows.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

constexpr Date july(double hours) { return dateSince1970(1782864000) + Duration{hours * secondsPerHour}; }

TEST(Streak, needsAStartBeforeItsEndAndACalendarThatAnswers) {
  const auto issues = std::make_shared<tests::RecordedIssues>();
  auto clients = std::make_shared<Dependencies>();
  clients->issueReporter = issues;
  clients->calendar = clients->currentCalendar = tests::gregorianCalendar("UTC");
  const DependencyScope scope{clients};

  EXPECT_EQ(Streak::make(july(20), july(52), 2), (Streak{july(20), july(52), 3, 2}));
  EXPECT_EQ(Streak::make(july(20), july(20), 1), std::nullopt);
  EXPECT_EQ(Streak::make(july(21), july(20), 1), std::nullopt);
  EXPECT_THAT(issues->messages, testing::IsEmpty());
  EXPECT_EQ(Streak::make(july(20), lastDate + Duration{1.0}, 1), std::nullopt);
  EXPECT_THAT(issues->messages, testing::ElementsAre("no calendar dates"));
}

TEST(TrendsFastingEntry, hasNoNegativeDuration) {
  EXPECT_EQ((TrendsFastingEntry{july(1), july(3), 0}.duration()), 7200);
  EXPECT_EQ((TrendsFastingEntry{july(3), july(1), 0}.duration()), 0);
}

}  // namespace
}  // namespace mivo
