// SPDX-License-Identifier: MIT
#include "mivo/calculations/SummaryTotals.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mivo {

void PrintTo(const SummaryTotals& totals, std::ostream* out) {
  *out << totals.totalFasts << " fasts, " << totals.totalHours << " h, average " << totals.averageFast << " s, longest "
       << totals.longestFast << " s";
}

namespace {

FinishedFastingDataEntry lasting(double seconds) { return {dateSince1970(1000), dateSince1970(1000 + seconds), 0}; }

struct TotalsRow {
  const char* name;
  std::vector<double> lengths;
  SummaryTotals expected;
};
void PrintTo(const TotalsRow& row, std::ostream* out) { *out << row.name; }
class Totals : public testing::TestWithParam<TotalsRow> {};

TEST_P(Totals, addUp) {
  std::vector<FinishedFastingDataEntry> fasts;
  for (const double seconds : GetParam().lengths) fasts.push_back(lasting(seconds));
  EXPECT_EQ(summaryTotals(fasts), GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Rows, Totals,
                         testing::Values(TotalsRow{"none", {}, {0, 0, 0, 0}},
                                         TotalsRow{"aSecondShortOfAnHour", {3599}, {1, 0, 3599, 3599}},
                                         TotalsRow{"anHour", {1800, 1800}, {2, 1, 1800, 1800}},
                                         TotalsRow{"backwardCountsAsZero", {7200, -7200}, {2, 2, 3600, 7200}}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(SummaryTotalsDeathTest, stopsWhereHoursCannotBeCounted) {
  EXPECT_DEATH(summaryTotals(std::vector{lasting(1e300)}), "more than can be counted");
  EXPECT_DEATH(summaryTotals(std::vector{lasting(HUGE_VAL)}), "more than can be counted");
}

}  // namespace
}  // namespace mivo
