// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mivo/model/Date.h"
#include "mivo/model/Record.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/store/Effect.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The card that says how far the goal weight is, and when the trend reaches it. The goal and the unit are settings of
/// the host, which sets them and keeps what `didSetGoal` and `didTypeGoal` bring; weight and trend follow the
/// statistics.
struct GoalWeightCardFeature {
  struct State {
    Observed<std::optional<double>> goalInKg = std::nullopt;
    Observed<std::optional<double>> currentWeightInKg = std::nullopt;
    Observed<std::optional<double>> weightTrendInKg = std::nullopt;  ///< the change over `trendTimeRange`
    Observed<std::optional<ClosedDateRange>> trendTimeRange = std::nullopt;
    Observed<WeightUnit> weightUnit = WeightUnit::kilograms;
    Observed<bool> hasGoalProblem = false;  ///< what was typed last is no weight
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct didSetGoal {
      std::optional<double> goalInKg;  ///< none takes the goal away
      bool operator==(const didSetGoal&) const = default;
    };
    /// The sheet that takes the goal in.
    struct didOpenGoal {
      bool operator==(const didOpenGoal&) const = default;
    };
    struct didTypeGoal {
      std::string text;  ///< in the unit that is shown; an empty one takes the goal away
      bool operator==(const didTypeGoal&) const = default;
    };
    struct didChangeUnit {
      WeightUnit unit;
      bool operator==(const didChangeUnit&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::didSetGoal, Cases::didOpenGoal, Cases::didTypeGoal, Cases::didChangeUnit> {
    using variant::variant;
  };

  /// A goal that is not a person's weight is ignored.
  Effect<Action> reduce(State& state, const Action& action) const;
};

template <RecordOf<GoalWeightCardFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [goalInKg, currentWeightInKg, weightTrendInKg, trendTimeRange, weightUnit, hasGoalProblem] = record;
  visit("goalInKg", goalInKg);
  visit("currentWeightInKg", currentWeightInKg);
  visit("weightTrendInKg", weightTrendInKg);
  visit("trendTimeRange", trendTimeRange);
  visit("weightUnit", weightUnit);
  visit("hasGoalProblem", hasGoalProblem);
}

/// When the trend reaches the goal, or why it does not.
struct GoalOutlook {
  enum class Kind {
    reachesGoal,  ///< at `date`
    goalReached,  ///< the weight is at the goal or beyond it, seen from where the trend began
    noGoal,
    noWeight,  ///< nothing was weighed yet
    noTrend,   ///< the weights of the last 90 days follow no clear line
    movingAway,
    tooFar,  ///< more than ten years away at this pace
  };
  Kind kind = Kind::noGoal;
  std::optional<Date> date;
  bool operator==(const GoalOutlook&) const = default;
};

/// The pace is the trend's kilograms over its time; the date is counted from now with the current weight. A weight
/// within 0.05 kg of the goal is at it.
GoalOutlook goalOutlook(const GoalWeightCardFeature::State& state, Date now);

/// How much of the way from the weight at the start of the trend to the goal is done, 0 to 1. None without goal, weight
/// or trend.
std::optional<double> goalFraction(const GoalWeightCardFeature::State& state);

/// One sentence, in the user's language: "At this pace you reach your goal around 6 October 2026."
std::string outlookText(const GoalOutlook& outlook, const TextLookup& texts, const DateFormatter& dates);

}  // namespace mivo
