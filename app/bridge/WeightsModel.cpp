// SPDX-License-Identifier: MIT
#include "WeightsModel.h"

#include <algorithm>
#include <utility>

namespace mivo::app {

using Edit = PresentationAction<AddWeightLogFeature::Action>;

WeightsModel::WeightsModel(AppLink to, QObject* parent)
    : mivo::app::WeightsPageRecord{parent},
      app{std::move(to)},
      entry{new AddWeightModel{
          [this](AddWeightModel::Action action) { sendEdited(Edit::presented{std::move(action)}); }, this}},
      rows{new SeenRows{rolesOf<host::WeightRow>(), app.clients,
                        [this](std::size_t row, const PageClients& now) {
                          return valuesOf(host::composeWeightRow(*host::weightOf(weights, row), unit, now));
                        },
                        this}} {}

void WeightsModel::follow(const host::AppFeature::State& state) {
  take(state);
  const auto& present = state.editedWeight;
  if (present) entry->show(composeAddWeight(present->entry, app.clients()));
  edited = present ? std::optional{present->before.id} : std::nullopt;
}

void WeightsModel::take(const host::AppFeature::State& state) {
  const auto& shown = state.statistics.addWeightLogState.weightUnit;
  std::vector<Stamp> read{state.weights.stamp(), shown.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  const host::RowChange change = host::rowChange(weights, *state.weights);
  rows->become(change, [&] { weights = *state.weights; });
  for (std::size_t row = change.first; row < change.first + std::min(change.removed, change.added); ++row)
    rows->tellRow(row);
  if (std::exchange(unit, *shown) != unit)
    retell();
  else
    rows->retellOnAnotherDay();
  show(host::composeWeightsPage(weights, app.clients().texts));
}

void WeightsModel::edit(int row) {
  if (const auto* sample = sampleOf(row)) app.send(AppAction::didTapEditWeight{sample->id});
}

void WeightsModel::remove(int row) {
  if (const auto* sample = sampleOf(row)) app.send(AppAction::didDeleteWeight{sample->id});
}

void WeightsModel::removeEdited() {
  if (!edited) return;
  const UUID id = *edited;
  sendEdited(Edit::dismiss{});
  app.send(AppAction::didDeleteWeight{id});
}

// A sheet that closes may still be touched.
void WeightsModel::sendEdited(Edit action) {
  if (edited) app.send(AppAction::editedWeight{std::move(action)});
}

QString WeightsModel::spokenText(int row) const {
  return qString(host::weightsSpoken(weights, static_cast<std::size_t>(row), unit, app.clients()));
}

}  // namespace mivo::app
