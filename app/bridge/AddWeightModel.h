// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "mivo/statistics/AddWeightLogFeature.h"

namespace mivo::app {

/// What stands in the add-weight card, and what the user does there.
class AddWeightModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString fieldText READ fieldText NOTIFY changed)
  Q_PROPERTY(QString unit READ unit NOTIFY changed)
  Q_PROPERTY(QString dateText READ dateText NOTIFY changed)
  Q_PROPERTY(QString problem READ problem NOTIFY changed)
  /// Seconds since 1970.
  Q_PROPERTY(double instant READ instant NOTIFY changed)
  Q_PROPERTY(bool saving READ saving NOTIFY changed)

 public:
  using Action = AddWeightLogFeature::Action;
  AddWeightModel(AddWeightLogFeature::State initial, std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const AddWeightLogFeature::State& newer);

  QString fieldText() const;
  QString unit() const;
  QString dateText() const;
  double instant() const { return held.logDate->time_since_epoch().count(); }
  QString problem() const;
  bool saving() const { return held.savingState == AddWeightLogFeature::SavingState::saving; }

  Q_INVOKABLE void edit(const QString& text) { send(Action::didChangeText{text.toStdString()}); }
  Q_INVOKABLE void increase() { send(Action::didTapIncrease{}); }
  Q_INVOKABLE void decrease() { send(Action::didTapDecrease{}); }
  Q_INVOKABLE void changeDate(double instant) { send(Action::didChangeDate{Date{Duration{instant}}}); }
  Q_INVOKABLE void save() { send(Action::didTapSave{}); }

 Q_SIGNALS:
  void changed();

 private:
  AddWeightLogFeature::State held;
  QString shownDate;
  std::function<void(Action)> send;
};

}  // namespace mivo::app
