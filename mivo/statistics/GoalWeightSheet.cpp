// SPDX-License-Identifier: MIT
#include "mivo/statistics/GoalWeightSheet.h"

#include "mivo/weights/WeightText.h"

namespace mivo {

GoalWeightSheet composeGoalWeightSheet(const GoalWeightCardFeature::State& state, const TextLookup& texts,
                                       const NumberFormatter& numbers, const MassFormatter& masses) {
  const auto& goal = *state.goalInKg;
  return {.title = texts.text("Goal weight"),
          .fieldText = goal ? weightFieldText(*goal, state.weightUnit, numbers, masses) : "",
          .unit = weightFieldUnit(state.weightUnit),
          .problem = state.hasGoalProblem ? refusedWeightText(texts) : "",
          .save = texts.text("Save"),
          .remove = goal ? texts.text("Remove goal") : ""};
}

}  // namespace mivo
