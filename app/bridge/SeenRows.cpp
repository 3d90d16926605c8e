// SPDX-License-Identifier: MIT
#include "SeenRows.h"

#include <algorithm>
#include <utility>

#include "mivo/pages/DateTimeText.h"

namespace mivo::app {

SeenRows::SeenRows(QHash<int, QByteArray> roles, std::function<PageClients()> present, Compose composes,
                   QObject* parent)
    : QAbstractListModel{parent}, clients{std::move(present)}, names{std::move(roles)}, compose{std::move(composes)} {}

QVariant SeenRows::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rows) return {};
  if (std::exchange(composedRow, index.row()) != index.row())
    composed = compose(static_cast<std::size_t>(index.row()), clients());
  return composed.value(role - Qt::UserRole);
}

void SeenRows::become(const host::RowChange& change, const std::function<void()>& takeOver) {
  const int both = static_cast<int>(change.first + std::min(change.removed, change.added));
  const int removed = static_cast<int>(change.first + change.removed);
  const int added = static_cast<int>(change.first + change.added);
  composedRow = -1;
  if (both < removed) beginRemoveRows({}, both, removed - 1);
  if (both < added) beginInsertRows({}, both, added - 1);
  takeOver();
  rows += added - removed;
  if (both < removed) endRemoveRows();
  if (both < added) endInsertRows();
}

void SeenRows::tellRow(std::size_t row) {
  const QModelIndex place = index(static_cast<int>(row));
  Q_EMIT dataChanged(place, place);
}

void SeenRows::retell() {
  toldAt = clients().now;
  composedRow = -1;
  if (rows > 0) Q_EMIT dataChanged(index(0), index(rows - 1));
}

void SeenRows::retellOnAnotherDay() {
  if (daysFromToday(toldAt, clients()) != 0) retell();
}

}  // namespace mivo::app
