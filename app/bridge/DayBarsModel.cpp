// SPDX-License-Identifier: MIT
#include "DayBarsModel.h"

namespace mivo::app {

DayBarsModel::DayBarsModel(State initial, Texts texts, std::function<void(Action)> send, QObject* parent)
    : ChartTable{parent}, held{std::move(initial)}, said{std::move(texts)}, sendAction{std::move(send)} {}

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

std::optional<DayBarsModel::State::PopupViewState> DayBarsModel::popup() const { return held.popupViewState(); }

QString DayBarsModel::spokenSelection() const {
  const auto& selected = *held.selectedUUID;
  const ChartDataEntry* entry = selected ? held.data->find(*selected) : nullptr;
  if (!entry) return {};
  return said.dates(entry->dateInterval) + QStringLiteral(": ") + said.duration(entry->value * held.maxTime);
}

void DayBarsModel::setVisible(DateInterval interval) {
  const QString text = said.dates(interval);
  if (text == dates) return;
  dates = text;
  Q_EMIT visibleDatesChanged();
}

}  // namespace mivo::app
