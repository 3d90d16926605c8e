// SPDX-License-Identifier: MIT
#include "FastHistoryModel.h"

#include <utility>

namespace mivo::app {

FastHistoryModel::FastHistoryModel(AppLink to, QObject* parent)
    : mivo::app::HistoryPageRecord{parent},
      app{std::move(to)},
      rows{new SeenRows{
          rolesOf<host::HistoryRow>(), app.clients,
          [this](std::size_t row, const PageClients& now) { return valuesOf(composeHistoryRow(facts, row, now)); },
          this}} {}

void FastHistoryModel::follow(const host::AppFeature::State& state) {
  std::vector<Stamp> read{state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  take(host::historyFacts(state.fasts, state.now));
  rows->retellOnAnotherDay();
  show(composeHistoryPage(facts, app.clients()));
}

void FastHistoryModel::take(host::HistoryFacts next) {
  host::HistoryFacts before;
  rows->become(rowChange(facts, next), [&] { before = std::exchange(facts, std::move(next)); });
  for (const std::size_t row : rowsThatDiffer(before, facts)) rows->tellRow(row);
}

void FastHistoryModel::edit(int row) {
  if (const auto* record = recordOf(facts, static_cast<std::size_t>(row)))
    app.send(AppAction::didTapEditFast{record->fast.id});
}

void FastHistoryModel::remove(int row) {
  if (const auto* record = recordOf(facts, static_cast<std::size_t>(row)))
    app.send(AppAction::didDeleteFast{record->fast.id});
}

void FastHistoryModel::lookUpMonths() { app::show(composeHistoryMonths(facts, app.clients()), *months); }

QString FastHistoryModel::spokenText(int row) const {
  return qString(historySpoken(facts, static_cast<std::size_t>(row), app.clients()));
}

}  // namespace mivo::app
