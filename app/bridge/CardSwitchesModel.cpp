// SPDX-License-Identifier: MIT
#include "CardSwitchesModel.h"

#include <utility>

namespace mivo::app {

CardSwitchesModel::CardSwitchesModel(std::vector<CardSwitch> rows, std::function<void(const Settings&)> keeps,
                                     QObject* parent)
    : QAbstractListModel{parent}, switches{std::move(rows)}, keep{std::move(keeps)} {}

void CardSwitchesModel::follow(const Settings& settings) {
  const Settings before = std::exchange(present, settings);
  for (int row = 0; row < rowCount(); ++row) {
    const auto flag = switches[static_cast<std::size_t>(row)].flag;
    if (before.*flag != present.*flag) Q_EMIT dataChanged(index(row), index(row), {ShownRole});
  }
}

int CardSwitchesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(switches.size());
}

QVariant CardSwitchesModel::data(const QModelIndex& index, int role) const {
  const CardSwitch& row = switches[static_cast<std::size_t>(index.row())];
  switch (role) {
    case TitleRole:
      return row.title;
    case HoursRole:
      return row.hours;
    case MeaningRole:
      return row.meaning;
    case ShownRole:
      return (present.*row.flag).value();
    default:
      return {};
  }
}

QHash<int, QByteArray> CardSwitchesModel::roleNames() const {
  return {{TitleRole, "title"}, {HoursRole, "hours"}, {MeaningRole, "meaning"}, {ShownRole, "shown"}};
}

void CardSwitchesModel::toggle(int row) {
  Settings changed = present;
  auto& flag = changed.*switches.at(static_cast<std::size_t>(row)).flag;
  flag = !flag.value();
  keep(changed);
}

}  // namespace mivo::app
