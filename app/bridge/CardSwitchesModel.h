// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>
#include <QtCore/QString>

#include <functional>
#include <vector>

#include "mivo/statistics/DashboardSettingsFeature.h"

namespace mivo::app {

/// Says whether one card is shown.
struct CardSwitch {
  Observed<bool> DashboardSettingsFeature::State::* flag;
  QString title;
  QString hours = {};    ///< "4–16h": when a fast is in the zone
  QString meaning = {};  ///< whose colour it has, as the theme names it; empty without one
};

/// The switches of a few cards. A row stays when it is switched, so that the keys stay with it.
class CardSwitchesModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the settings have them")

 public:
  enum Role { TitleRole = Qt::UserRole, HoursRole, MeaningRole, ShownRole };
  using Settings = DashboardSettingsFeature::State;

  CardSwitchesModel(std::vector<CardSwitch> rows, std::function<void(const Settings&)> keep, QObject* parent = nullptr);

  void follow(const Settings& settings);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  Q_INVOKABLE void toggle(int row);

 private:
  std::vector<CardSwitch> switches;
  std::function<void(const Settings&)> keep;
  Settings present;
};

}  // namespace mivo::app
