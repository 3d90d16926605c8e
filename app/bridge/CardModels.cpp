// SPDX-License-Identifier: MIT
#include "CardModels.h"

#include <algorithm>

#include "app/bridge/Text.h"

namespace mivo::app {
namespace {

// A negative average, and one that is no number, has no bar.
double drawn(double fraction) { return fraction > 0 ? std::min(fraction, 1.0) : 0; }

}  // namespace

void GoalWeightCardModel::take(const GoalWeightCard& composed) {
  carry(composed, *this);
  fraction = composed.fraction.value_or(-1);
}

void TrendsCardModel::take(const std::vector<TrendCard>& composed) {
  title = composed.empty() ? QString{} : qString(composed.front().section);
  rows.clear();
  for (const TrendCard& card : composed) {
    TrendRow row = valueOf(card);
    row.thisTimeRangeFraction = drawn(row.thisTimeRangeFraction);
    row.lastTimeRangeFraction = drawn(row.lastTimeRangeFraction);
    rows.append(row);
  }
}

}  // namespace mivo::app
