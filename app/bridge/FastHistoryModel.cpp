// SPDX-License-Identifier: MIT
#include "FastHistoryModel.h"

#include <utility>

#include "app/bridge/Records.h"
#include "app/bridge/Text.h"

namespace mivo::app {

FastHistoryModel::FastHistoryModel(std::function<PageClients()> present, std::function<void(Action)> sends,
                                   QObject* parent)
    : SeenRows{rolesOf<host::HistoryRow>(), std::move(present),
               [this](std::size_t row, const PageClients& now) { return valuesOf(composeHistoryRow(facts, row, now)); },
               parent},
      send{std::move(sends)} {}

void FastHistoryModel::follow(const host::AppFeature::State& state) {
  std::vector<Stamp> read{state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  take(host::historyFacts(state.fasts, state.now));
  retellOnAnotherDay();
  carry(composeHistoryPage(facts, clients()), *this);
}

void FastHistoryModel::take(host::HistoryFacts next) {
  host::HistoryFacts before;
  become(rowChange(facts, next), [&] { before = std::exchange(facts, std::move(next)); });
  for (const std::size_t row : rowsThatDiffer(before, facts)) tellRow(row);
}

void FastHistoryModel::edit(int row) {
  if (const auto* record = recordOf(facts, static_cast<std::size_t>(row)))
    send(Action::didTapEditFast{record->fast.id});
}

void FastHistoryModel::remove(int row) {
  if (const auto* record = recordOf(facts, static_cast<std::size_t>(row))) send(Action::didDeleteFast{record->fast.id});
}

QString FastHistoryModel::spokenText(int row) const {
  return qString(historySpoken(facts, static_cast<std::size_t>(row), clients()));
}

}  // namespace mivo::app
