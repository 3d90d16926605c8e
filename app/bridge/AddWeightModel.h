// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <utility>

#include "app/bridge/Text.h"
#include "mivo/statistics/AddWeightForm.h"

namespace mivo::app {

/// An `AddWeightForm`, and what the user does there.
class AddWeightModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString fieldText READ fieldText NOTIFY changed)
  Q_PROPERTY(QString unit READ unit NOTIFY changed)
  Q_PROPERTY(QString dateText READ dateText NOTIFY changed)
  Q_PROPERTY(QString dateTitle READ dateTitle NOTIFY changed)
  Q_PROPERTY(QString problem READ problem NOTIFY changed)
  /// Seconds since 1970.
  Q_PROPERTY(double instant READ instant NOTIFY changed)
  Q_PROPERTY(bool saving READ saving NOTIFY changed)

 public:
  using Action = AddWeightLogFeature::Action;
  explicit AddWeightModel(std::function<void(Action)> sends) : send{std::move(sends)} {}

  void show(AddWeightForm composed) {
    if (composed == form) return;
    form = std::move(composed);
    Q_EMIT changed();
  }

  QString fieldText() const { return qString(form.fieldText); }
  QString unit() const { return qString(form.unit); }
  QString dateText() const { return qString(form.dateText); }
  QString dateTitle() const { return qString(form.dateTitle); }
  QString problem() const { return qString(form.problem); }
  double instant() const { return secondsSince1970(form.date); }
  bool saving() const { return form.isSaving; }

  Q_INVOKABLE void edit(const QString& text) { send(Action::didChangeText{text.toStdString()}); }
  Q_INVOKABLE void increase() { send(Action::didTapIncrease{}); }
  Q_INVOKABLE void decrease() { send(Action::didTapDecrease{}); }
  Q_INVOKABLE void changeDate(double instant) { send(Action::didChangeDate{Date{Duration{instant}}}); }
  Q_INVOKABLE void save() { send(Action::didTapSave{}); }

 Q_SIGNALS:
  void changed();

 private:
  AddWeightForm form;
  std::function<void(Action)> send;
};

}  // namespace mivo::app
