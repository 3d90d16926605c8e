// SPDX-License-Identifier: MIT
#include "CardModels.h"

#include <algorithm>

#include "app/bridge/Text.h"

namespace mivo::app {
namespace {

// A negative average, and one that is no number, has no bar.
double drawn(double fraction) { return fraction > 0 ? std::min(fraction, 1.0) : 0; }

}  // namespace

void SummaryCardModel::take(const SummaryCard& composed) {
  carry(composed, *this);
  values.clear();
  labels.clear();
  for (const SummaryFigure& figure : composed.figures) {
    values.append(qString(figure.value));
    labels.append(qString(figure.label));
  }
}

void GoalWeightCardModel::take(const GoalWeightCard& composed) {
  carry(composed, *this);
  fraction = composed.fraction.value_or(-1);
}

void BadgesCardModel::take(const BadgesCard& composed) {
  carry(composed, *this);
  milestone = recordOf<BadgeHalfRecord>(composed.milestone);
  streak = recordOf<BadgeHalfRecord>(composed.streak);
}

void TimeRangeCardModel::take(const TimeRangeCard& composed) {
  carry(composed, *this);
  options = textsOf(composed.options);
}

void TrendsCardModel::take(const std::vector<TrendCard>& composed) {
  title = composed.empty() ? QString{} : qString(composed.front().section);
  rows.clear();
  for (const TrendCard& card : composed) {
    TrendRow row = recordOf<TrendRow>(card);
    row.thisTimeRangeFraction = drawn(row.thisTimeRangeFraction);
    row.lastTimeRangeFraction = drawn(row.lastTimeRangeFraction);
    rows.append(row);
  }
}

}  // namespace mivo::app
