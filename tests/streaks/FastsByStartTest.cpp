// SPDX-License-Identifier: MIT
#include "mivo/streaks/FastsByStart.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/histories/RandomHistories.h"

namespace mivo {
namespace {

using tests::Fasts;

Fasts stablySorted(Fasts fasts) {
  std::ranges::stable_sort(fasts, std::less{}, &FinishedFastingDataEntry::start);
  return fasts;
}

Fasts listed(const Fasts& fasts) {
  const FastsByStart ordered{fasts};
  return {ordered.list().begin(), ordered.list().end()};
}

// Goals number the fasts, so that the order of equal starts shows.
Fasts numbered(const std::vector<double>& starts) {
  Fasts fasts;
  for (const double start : starts)
    fasts.push_back({dateSince1970(start), dateSince1970(start + 60), std::ssize(fasts)});
  return fasts;
}

RC_GTEST_PROP(FastsByStart, equalsAStableSort, ()) {
  const auto fasts = *tests::histories(dateSince1970(1.7e9));
  RC_ASSERT(listed(fasts) == stablySorted(fasts));
}

RC_GTEST_PROP(FastsByStart, keepsTheOrderOfEqualStarts, ()) {
  const auto fasts = numbered(*rc::gen::container<std::vector<double>>(rc::gen::element(0.0, 1.0, 2.0, 1e9)));
  RC_ASSERT(listed(fasts) == stablySorted(fasts));
}

TEST(FastsByStart, looksAtFastsThatAreInOrderInPlace) {
  const auto fasts = numbered({1, 2, 2, 3});
  EXPECT_EQ(FastsByStart{fasts}.list().data(), fasts.data());
  EXPECT_TRUE(FastsByStart{Fasts{}}.list().empty());
}

TEST(FastsByStart, sortsCrowdsAndDatesBeyondTheYearsToo) {
  std::vector<double> crowd{1e9, 0};
  for (int i = 0; i < 100; ++i) crowd.push_back(1e9 - i % 7);
  EXPECT_EQ(listed(numbered(crowd)), stablySorted(numbered(crowd)));
  EXPECT_EQ(listed(numbered({5, 1e300, -1e300, 7, 7})), stablySorted(numbered({5, 1e300, -1e300, 7, 7})));
}

}  // namespace
}  // namespace mivo
