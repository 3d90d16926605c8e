// SPDX-License-Identifier: MIT
#include "mivo/statistics/AddWeightForm.h"

#include "mivo/pages/DateTimeText.h"
#include "mivo/weights/WeightText.h"

namespace mivo {

AddWeightForm composeAddWeight(const AddWeightLogFeature::State& state, const PageClients& clients) {
  const auto& typed = *state.typedText;
  return {.fieldText =
              typed ? *typed : weightFieldText(state.weightInKg, state.weightUnit, clients.numbers, clients.masses),
          .unit = weightFieldUnit(state.weightUnit),
          .dateText = dateTimeText(state.logDate, clients),
          .dateTitle = clients.texts.text("Date and time"),
          .date = state.logDate,
          .problem = problemText(state, clients.texts),
          .isSaving = state.savingState == AddWeightLogFeature::SavingState::saving};
}

std::string problemText(const AddWeightLogFeature::State& state, const TextLookup& texts) {
  using Problem = AddWeightLogFeature::Problem;
  if (state.savingState == AddWeightLogFeature::SavingState::failed) return state.failure;
  if (state.problem == Problem::notAWeight) return refusedWeightText(texts);
  if (state.problem == Problem::dateInFuture) return texts.text("This date has not come yet.");
  return {};
}

}  // namespace mivo
