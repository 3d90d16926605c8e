// SPDX-License-Identifier: MIT
#include "FastHistoryModel.h"

#include <algorithm>
#include <utility>

#include "app/bridge/Records.h"
#include "app/bridge/Text.h"
#include "mivo/pages/DateTimeText.h"

namespace mivo::app {

FastHistoryModel::FastHistoryModel(std::function<PageClients()> present, std::function<void(Action)> sends,
                                   QObject* parent)
    : QAbstractListModel{parent}, clients{std::move(present)}, send{std::move(sends)} {}

void FastHistoryModel::follow(const host::AppFeature::State& state) {
  std::vector<Stamp> read{state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  become(host::historyFacts(state.fasts, state.now));
  const auto present = clients();
  if (daysFromToday(toldAt, present) != 0) retell();  // dates of the present year do not name it
  carry(composeHistoryPage(facts, present), *this);
}

void FastHistoryModel::become(host::HistoryFacts next) {
  const host::RowChange change = rowChange(facts, next);
  const int both = static_cast<int>(change.first + std::min(change.removed, change.added));
  const int removed = static_cast<int>(change.first + change.removed);
  const int added = static_cast<int>(change.first + change.added);
  composedRow = -1;
  if (both < removed) beginRemoveRows({}, both, removed - 1);
  if (both < added) beginInsertRows({}, both, added - 1);
  const host::HistoryFacts before = std::exchange(facts, std::move(next));
  if (both < removed) endRemoveRows();
  if (both < added) endInsertRows();
  for (const std::size_t row : rowsThatDiffer(before, facts))
    Q_EMIT dataChanged(index(static_cast<int>(row)), index(static_cast<int>(row)));
}

void FastHistoryModel::retell() {
  toldAt = clients().now;
  composedRow = -1;
  if (!facts.places.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int FastHistoryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(facts.places.size());
}

QVariant FastHistoryModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (std::exchange(composedRow, index.row()) != index.row())
    composed = valuesOf(composeHistoryRow(facts, static_cast<std::size_t>(index.row()), clients()));
  return composed.value(role - Qt::UserRole);
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
