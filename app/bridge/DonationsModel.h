// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <utility>

#include "app/records/Records.h"

namespace mivo::app {

/// A `DonationsPage`.
class DonationsModel : public mivo::app::DonationsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = DonationsFeature::Action;
  DonationsModel(std::function<void(Action)> sends, QObject* parent)
      : mivo::app::DonationsPageRecord{parent}, send{std::move(sends)} {}

  Q_INVOKABLE void choose(const QString& id) { send(Action::didChooseProduct{id.toStdString()}); }
  Q_INVOKABLE void tapButton() { send(Action::didTapButton{}); }

 private:
  std::function<void(Action)> send;
};

}  // namespace mivo::app
