// SPDX-License-Identifier: MIT
#include "RecordRows.h"

#include <algorithm>

namespace mivo::app {

QVariant RecordRows::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= count()) return {};
  return rows[static_cast<std::size_t>(index.row())].value(role - Qt::UserRole);
}

// Rows come and go at the end.
void RecordRows::become(std::vector<QVariantList> next) {
  const int before = count(), after = static_cast<int>(next.size()), both = std::min(before, after);
  for (int place = 0; place < both; ++place) {
    const auto row = static_cast<std::size_t>(place);
    if (rows[row] == next[row]) continue;
    rows[row] = std::move(next[row]);
    Q_EMIT dataChanged(index(place), index(place));
  }
  if (before == after) return;
  if (after < before) {
    beginRemoveRows({}, both, before - 1);
    rows.resize(static_cast<std::size_t>(after));
    endRemoveRows();
  } else {
    beginInsertRows({}, both, after - 1);
    std::move(next.begin() + both, next.end(), std::back_inserter(rows));
    endInsertRows();
  }
  Q_EMIT countChanged();
}

}  // namespace mivo::app
