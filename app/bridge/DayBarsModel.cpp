// SPDX-License-Identifier: MIT
#include "DayBarsModel.h"

#include "app/bridge/Text.h"

namespace mivo::app {

DayBarsModel::DayBarsModel(State initial, drawing::DayBarsClients words, std::function<void(Action)> send,
                           QObject* parent)
    : mivo::app::ChartTable{parent}, held{std::move(initial)}, clients{words}, sendAction{std::move(send)} {}

void DayBarsModel::follow(const State& newer) {
  const bool hasOtherUnit = !(held.chartTimeUnit == newer.chartTimeUnit);
  const bool isWritten = held.data.stamp() != newer.data.stamp() || held.maxTime.stamp() != newer.maxTime.stamp() ||
                         held.selectedUUID.stamp() != newer.selectedUUID.stamp() ||
                         held.visibleDays.stamp() != newer.visibleDays.stamp() || hasOtherUnit;
  const bool hasMoved = held.scrollViewMidX.stamp() != newer.scrollViewMidX.stamp();
  held = newer;
  if (hasMoved && *held.scrollViewMidX) Q_EMIT midXWanted(**held.scrollViewMidX);
  if (hasOtherUnit) Q_EMIT barsChanged();
  if (isWritten) Q_EMIT changed();
  if (isWritten) Q_EMIT tableChanged();
}

QString DayBarsModel::spokenSelection() const { return qString(drawing::spokenBar(held, clients)); }

QString DayBarsModel::date(int row) const {
  return qString(drawing::barDates(held, static_cast<std::size_t>(row), clients));
}

QString DayBarsModel::value(int row) const {
  return qString(drawing::barTime(held, static_cast<std::size_t>(row), clients));
}

void DayBarsModel::setVisible(DateInterval interval) {
  const QString text = qString(clients.dates.string(interval).value_or(""));
  if (text == dates) return;
  dates = text;
  Q_EMIT visibleDatesChanged();
}

}  // namespace mivo::app
