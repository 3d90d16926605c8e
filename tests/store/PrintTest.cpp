// SPDX-License-Identifier: MIT
#include "mivo/store/Print.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "mivo/model/Averages.h"
#include "mivo/model/LegacyFastingZone.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"
#include "mivo/store/List.h"

namespace mivo {

struct PrintedCases {
  struct onAppear {
    bool operator==(const onAppear&) const = default;
  };
  struct didTapBar {
    UUID id;
    bool operator==(const didTapBar&) const = default;
  };
};
struct PrintedAction : PrintedCases, std::variant<PrintedCases::onAppear, PrintedCases::didTapBar> {
  using variant::variant;
};
struct PrintedParentCases {
  struct chart {
    PrintedAction action;
    bool operator==(const chart&) const = default;
  };
};
struct PrintedParentAction : PrintedParentCases, std::variant<PrintedParentCases::chart> {
  using variant::variant;
};

namespace {

TEST(Print, readsLikeTheSource) {
  EXPECT_EQ(printed(3), "3");
  EXPECT_EQ(printed(0.1), "0.1");
  EXPECT_EQ(printed(std::numeric_limits<double>::quiet_NaN()), "nan");
  EXPECT_EQ(printed(true), "true");
  EXPECT_EQ(printed(std::string{"no"}), "\"no\"");
  EXPECT_EQ(printed(TimeRange::month), "month");
  EXPECT_EQ(printed(static_cast<LegacyFastingZone>(9)), "9");
  EXPECT_EQ(printed(std::optional<double>{}), "none");
  EXPECT_EQ(printed(Observed<std::optional<double>>{2.5}), "2.5");
  EXPECT_EQ(printed(List<int>{1, 2}), "[1, 2]");
  EXPECT_EQ(printed(List<int>{}), "[]");
  EXPECT_EQ(printed(std::map<int, double>{{1, 2.5}}), "[1: 2.5]");
}

TEST(Print, datesAreInUTCWithTheirFraction) {
  EXPECT_EQ(printed(dateSince1970(1782907200)), "2026-07-01T12:00:00Z");
  EXPECT_EQ(printed(dateSince1970(1782907200.25)), "2026-07-01T12:00:00.2500000Z");
  EXPECT_EQ(printed(firstDate), "0001-01-01T00:00:00Z");
  EXPECT_EQ(printed(dateSince1970(1e300)), "1e+300 s");
}

TEST(Print, recordsAndActionsNameTheirFieldsAndCases) {
  EXPECT_EQ(printed(StreakSettings{}), "{countingEntity: days, ignoreFastGoal: false, maxBreakHours: 24}");
  EXPECT_EQ(printed(PrintedParentAction{PrintedParentCases::chart{PrintedCases::onAppear{}}}), "chart(onAppear)");
  EXPECT_EQ(printed(PrintedAction{PrintedCases::didTapBar{UUID{1, 2}}}),
            "didTapBar(00000000-0000-0001-0000-000000000002)");
}

TEST(Print, testFrameworksPrintWhatIsOurs) {
  EXPECT_EQ(testing::PrintToString(AverageThisLastTimeRange{1, 2}), "{thisTimeRange: 1, lastTimeRange: 2}");
  EXPECT_EQ(testing::PrintToString(Observed<TimeRange>{TimeRange::year}), "year");
  EXPECT_EQ(testing::PrintToString(PrintedAction{PrintedCases::onAppear{}}), "onAppear");
}

}  // namespace
}  // namespace mivo
