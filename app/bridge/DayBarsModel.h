// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <optional>
#include <string>

#include "app/bridge/ChartTable.h"
#include "drawing/charts/DayBarsText.h"

namespace mivo::app {

/// A day-bar chart as the screen reads and drives it. What it says comes from the chart's state; what the user does
/// goes out as the chart's actions.
class DayBarsModel : public mivo::app::ChartTable {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a chart belongs to the statistics")
  /// The texts under "visible dates" of the card's head.
  Q_PROPERTY(QString visibleDates READ visibleDates NOTIFY visibleDatesChanged)
  Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
  /// The selected bar in words; empty without one.
  Q_PROPERTY(QString spokenSelection READ spokenSelection NOTIFY changed)

 public:
  using State = ScrollChartFeature::State;
  using Action = ScrollChartFeature::Action;

  DayBarsModel(State initial, drawing::DayBarsClients clients, std::function<void(Action)> send, QObject* parent);

  const State& state() const { return held; }
  QString visibleDates() const { return dates; }
  bool isEmpty() const { return held.data->empty(); }
  QString spokenSelection() const;
  int rowCount() const override { return static_cast<int>(held.data->size()); }
  QString date(int row) const override;
  QString value(int row) const override;
  std::string hoursText(double hours) const { return clients.hour.string(hours * secondsPerHour).value_or(""); }

  /// Takes a newer state over; tells the item which of its parts were written.
  void follow(const State& newer);

  /// The popup that the state shows just now.
  std::optional<State::PopupViewState> popup() const { return held.popupViewState(); }
  void send(Action action) const { sendAction(std::move(action)); }
  void setVisible(DateInterval interval);

 Q_SIGNALS:
  void changed();               ///< bars, unit, or what is selected
  void barsChanged();           ///< other bars than before: the chart starts anew at its latest one
  void midXWanted(qreal midX);  ///< the other chart was scrolled to there
  void visibleDatesChanged();

 private:
  State held;
  drawing::DayBarsClients clients;
  std::function<void(Action)> sendAction;
  QString dates;
};

}  // namespace mivo::app
