// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "mivo/model/Record.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/statistics/GoalWeightCardFeature.h"

namespace mivo {

/// The sheet that takes the goal weight in.
struct GoalWeightSheet {
  std::string title;
  std::string fieldText;  ///< the goal as it is typed; none without one
  std::string unit;       ///< "kg", where nothing is typed yet; none for stones
  std::string problem;    ///< one sentence about what was typed last
  std::string save;
  std::string remove;  ///< none without a goal
  bool operator==(const GoalWeightSheet&) const = default;
};

template <RecordOf<GoalWeightSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, fieldText, unit, problem, save, remove] = record;
  visit("title", title);
  visit("fieldText", fieldText);
  visit("unit", unit);
  visit("problem", problem);
  visit("save", save);
  visit("remove", remove);
}

/// Every text of the sheet. Pure. Thread: any.
GoalWeightSheet composeGoalWeightSheet(const GoalWeightCardFeature::State& state, const TextLookup& texts,
                                       const NumberFormatter& numbers, const MassFormatter& masses);

}  // namespace mivo
