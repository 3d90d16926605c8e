// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>

#include "app/records/Records.h"

namespace mivo::app {

/// An `AddWeightForm`, and what the user does there.
class AddWeightModel : public mivo::app::AddWeightFormRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = AddWeightLogFeature::Action;
  AddWeightModel(std::function<void(Action)> sends, QObject* parent)
      : mivo::app::AddWeightFormRecord{parent}, send{std::move(sends)} {}

  Q_INVOKABLE void edit(const QString& text) { send(Action::didChangeText{text.toStdString()}); }
  Q_INVOKABLE void increase() { send(Action::didTapIncrease{}); }
  Q_INVOKABLE void decrease() { send(Action::didTapDecrease{}); }
  Q_INVOKABLE void changeDate(double instant) { send(Action::didChangeDate{dateSince1970(instant)}); }
  Q_INVOKABLE void save() { send(Action::didTapSave{}); }

 private:
  std::function<void(Action)> send;
};

}  // namespace mivo::app
