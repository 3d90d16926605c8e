// SPDX-License-Identifier: MIT
#include "mivo/statistics/GoalWeightCardFeature.h"

#include <algorithm>
#include <cmath>

#include "mivo/weights/WeightText.h"

namespace mivo {
namespace {

using State = GoalWeightCardFeature::State;
using Kind = GoalOutlook::Kind;

constexpr double atGoalInKg = 0.05;
constexpr double farthestSeconds = 3652.5 * secondsPerDay;  // ten years

struct Trend {
  double startInKg = 0, changeInKg = 0, seconds = 0;
};

std::optional<Trend> trendOf(const State& state) {
  const auto &change = *state.weightTrendInKg, &current = *state.currentWeightInKg;
  const auto& range = *state.trendTimeRange;
  if (!change || !current || !range || range->duration() <= 0) return std::nullopt;
  return Trend{*current - *change, *change, range->duration()};
}

/// The trend has passed the goal where it lies between the weight then and the weight now.
bool hasPassed(double goalInKg, double currentInKg, const std::optional<Trend>& trend) {
  if (std::abs(goalInKg - currentInKg) <= atGoalInKg) return true;
  return trend && (goalInKg - trend->startInKg) * (goalInKg - currentInKg) < 0;
}

void didTypeGoal(State& state, const std::string& text) {
  const auto goal = parseTypedWeight(text, state.weightUnit);
  const bool isEmpty = text.find_first_not_of(" \t\n") == std::string::npos;
  state.hasGoalProblem = !goal && !isEmpty;
  if (goal || isEmpty) state.goalInKg = goal;
}

}  // namespace

auto GoalWeightCardFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  if (const auto* set = std::get_if<Action::didSetGoal>(&action)) {
    const bool isWeight = !set->goalInKg || isBodyWeight(*set->goalInKg);
    if (isWeight) state.goalInKg = set->goalInKg;
  }
  if (std::holds_alternative<Action::didOpenGoal>(action)) state.hasGoalProblem = false;
  if (const auto* typed = std::get_if<Action::didTypeGoal>(&action)) didTypeGoal(state, typed->text);
  if (const auto* changed = std::get_if<Action::didChangeUnit>(&action)) state.weightUnit = changed->unit;
  return {};
}

GoalOutlook goalOutlook(const State& state, Date now) {
  const auto &goal = *state.goalInKg, &current = *state.currentWeightInKg;
  if (!goal) return {Kind::noGoal, {}};
  if (!current) return {Kind::noWeight, {}};
  const auto trend = trendOf(state);
  if (hasPassed(*goal, *current, trend)) return {Kind::goalReached, {}};
  if (!trend || trend->changeInKg == 0) return {Kind::noTrend, {}};
  const double seconds = (*goal - *current) / trend->changeInKg * trend->seconds;
  if (seconds < 0) return {Kind::movingAway, {}};
  if (!(seconds <= farthestSeconds)) return {Kind::tooFar, {}};
  return {Kind::reachesGoal, now + Duration{seconds}};
}

std::optional<double> goalFraction(const State& state) {
  const auto trend = trendOf(state);
  const auto &goal = *state.goalInKg, &current = *state.currentWeightInKg;
  if (!goal || !trend) return std::nullopt;
  const double whole = *goal - trend->startInKg;
  if (whole == 0) return hasPassed(*goal, *current, trend) ? 1 : 0;
  return std::clamp((*current - trend->startInKg) / whole, 0.0, 1.0);
}

std::string outlookText(const GoalOutlook& outlook, const TextLookup& texts, const DateFormatter& dates) {
  switch (outlook.kind) {
    case Kind::reachesGoal:
      return filledIn(texts.text("At this pace you reach your goal around {1}."),
                      {outlook.date ? dates.string(*outlook.date, "yMMMMd").value_or("") : ""});
    case Kind::goalReached:
      return texts.text("You have reached your goal.");
    case Kind::noGoal:
      return texts.text("No goal is set.");
    case Kind::noWeight:
      return texts.text("Add your weight to see how far your goal is.");
    case Kind::noTrend:
      return texts.text("No clear trend in the last 90 days.");
    case Kind::movingAway:
      return texts.text("The trend is moving away from your goal.");
    case Kind::tooFar:
      return texts.text("At this pace your goal is more than ten years away.");
  }
  return {};
}

}  // namespace mivo
