// SPDX-License-Identifier: MIT
#include "mivo/statistics/AddWeightLogFeature.h"

#include <algorithm>
#include <cmath>

#include "mivo/weights/WeightText.h"

namespace mivo {
namespace {

using Feature = AddWeightLogFeature;
using State = Feature::State;
using Action = Feature::Action;

/// A tenth of a kilogram or a pound; a whole pound where stones and pounds are shown.
double stepInKg(WeightUnit unit) {
  return unit == WeightUnit::stones ? kilogramsPer(WeightUnit::pounds) : kilogramsPer(unit) / 10;
}

void edited(State& state) {
  state.savingState = Feature::SavingState::notSaved;
  state.problem = std::nullopt;
}

/// The next weight up or down that the field can show, so that a tap never seems to do nothing.
void step(State& state, int direction) {
  const double inKg = stepInKg(state.weightUnit);
  const double steps = std::round(state.weightInKg / inKg) + direction;
  if (!isTypedWeight(steps * inKg)) return;
  state.weightInKg = steps * inKg;
  state.typedText = std::nullopt;
  edited(state);
}

void didChangeText(State& state, const std::string& text) {
  const auto weight = parseTypedWeight(text, state.weightUnit);
  if (weight) state.weightInKg = *weight;
  state.typedText = text;
  edited(state);
}

std::optional<Feature::Problem> problemOf(const State& state, Date now) {
  const auto& typed = *state.typedText;
  if (typed && !parseTypedWeight(*typed, state.weightUnit)) return Feature::Problem::notAWeight;
  if (*state.logDate > now) return Feature::Problem::dateInFuture;
  return std::nullopt;
}

Effect<Action> didTapSave(const Feature& feature, State& state) {
  if (state.savingState == Feature::SavingState::saving) return {};
  const Date now = feature.date->now();
  if (!state.isDateChosen) state.logDate = now;
  state.problem = problemOf(state, now);
  if (state.problem->has_value()) return {};
  state.savingState = Feature::SavingState::saving;
  return Effect<Action>::run([](const Send<Action>& send, StopToken,
                                const BodyWeightSample& sample) { send(Action::didAcceptSample{sample}); },
                             BodyWeightSample{feature.uuid->next(), state.logDate, state.weightInKg});
}

void didSave(State& state, Date now) {
  state.savingState = Feature::SavingState::saved;
  state.typedText = std::nullopt;
  state.failure = std::string{};
  state.logDate = now;  // for the next weighing
  state.isDateChosen = false;
}

void didFail(State& state, const std::string& reason) {
  state.savingState = Feature::SavingState::failed;
  state.failure = reason;
}

}  // namespace

auto AddWeightLogFeature::reduce(State& state, const Action& action) const -> Effect<Action> {
  if (const auto* text = std::get_if<Action::didChangeText>(&action)) didChangeText(state, text->text);
  if (std::holds_alternative<Action::didTapIncrease>(action)) step(state, 1);
  if (std::holds_alternative<Action::didTapDecrease>(action)) step(state, -1);
  if (const auto* changed = std::get_if<Action::didChangeDate>(&action)) {
    state.logDate = changed->date;
    state.isDateChosen = true;
    edited(state);
  }
  if (const auto* changed = std::get_if<Action::didChangeUnit>(&action)) {
    state.weightUnit = changed->unit;
    state.typedText = std::nullopt;
  }
  if (std::holds_alternative<Action::didTapSave>(action)) return didTapSave(*this, state);
  if (std::holds_alternative<Action::didSave>(action)) didSave(state, date->now());
  if (const auto* failed = std::get_if<Action::didFailToSave>(&action)) didFail(state, failed->reason);
  return {};
}

}  // namespace mivo
