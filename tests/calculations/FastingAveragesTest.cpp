// SPDX-License-Identifier: MIT
#include "mivo/calculations/FastingAverages.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "mivo/calculations/UnionOfFasts.h"
#include "tests/histories/RandomHistories.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using tests::Fasts;

constexpr Date around = dateSince1970(1782864000);
constexpr double windowSeconds = 90 * 86400;

RC_GTEST_PROP(FastingAverages, equalClippingEveryStretchToEveryWindow, ()) {
  Fasts fasts = *tests::histories(around);
  const Fasts later = *tests::histories(around + Duration{*rc::gen::inRange(0, 200) * secondsPerDay});
  fasts.insert(fasts.end(), later.begin(), later.end());
  std::erase_if(fasts, [](const auto& fast) { return fast.end < fast.start; });
  std::ranges::stable_sort(fasts, std::less{}, &FinishedFastingDataEntry::start);
  const Date earliest = around - Duration{*rc::gen::inRange(0, 30) * secondsPerDay};

  std::vector<std::pair<Date, double>> expected;
  for (const auto& fast : fasts) {
    double seconds = 0;
    for (const auto& stretch : unionOfFasts(fasts))
      seconds += std::max(0.0, secondsBetween(std::max(stretch.start, fast.end - Duration{windowSeconds}),
                                              std::min(stretch.end, fast.end)));
    if (fast.end >= earliest) expected.emplace_back(fast.end, seconds);
  }
  std::ranges::sort(expected);

  const auto entries = fastingAverageSeries(fasts, unionOfFasts(fasts), earliest, tests::CountingUUIDs{});
  RC_ASSERT(entries.size() == expected.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    RC_ASSERT(entries[i].date == expected[i].first);
    RC_ASSERT(std::abs(entries[i].value - expected[i].second) < 1e-6);
    RC_ASSERT(entries[i].hours == entries[i].value / 3600);
  }
}

TEST(FastingAverages, keepAFastThatEndsExactlyAtTheCutOff) {
  const Fasts fasts{{around - Duration{7200}, around - Duration{1}, 0}, {around - Duration{1}, around, 0}};
  const auto entries = fastingAverageSeries(fasts, unionOfFasts(fasts), around, tests::CountingUUIDs{});
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries[0].date, around);
}

}  // namespace
}  // namespace mivo
