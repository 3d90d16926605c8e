// SPDX-License-Identifier: MIT
#include "FastHistoryModel.h"

#include <utility>

namespace mivo::app {

FastHistoryModel::FastHistoryModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)},
      send{std::move(sends)},
      rows{new SeenRows{
          rolesOf<host::HistoryRow>(), clients,
          [this](std::size_t row, const PageClients& now) { return valuesOf(composeHistoryRow(facts, row, now)); },
          this}} {}

void FastHistoryModel::follow(const host::AppFeature::State& state) {
  std::vector<Stamp> read{state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  take(host::historyFacts(state.fasts, state.now));
  rows->retellOnAnotherDay();
  show(composeHistoryPage(facts, clients()));
}

void FastHistoryModel::take(host::HistoryFacts next) {
  host::HistoryFacts before;
  rows->become(rowChange(facts, next), [&] { before = std::exchange(facts, std::move(next)); });
  for (const std::size_t row : rowsThatDiffer(before, facts)) rows->tellRow(row);
}

void FastHistoryModel::edit(int row) {
  if (const auto* record = recordOf(facts, static_cast<std::size_t>(row)))
    send(Action::didTapEditFast{record->fast.id});
}

void FastHistoryModel::remove(int row) {
  if (const auto* record = recordOf(facts, static_cast<std::size_t>(row))) send(Action::didDeleteFast{record->fast.id});
}

void FastHistoryModel::lookUpMonths() { app::show(composeHistoryMonths(facts, clients()), *months); }

QString FastHistoryModel::spokenText(int row) const {
  return qString(historySpoken(facts, static_cast<std::size_t>(row), clients()));
}

}  // namespace mivo::app
