// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <utility>

#include "app/bridge/Records.h"

namespace mivo::app {

/// A `DonationsPage`.
class DonationsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString text MEMBER text NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::DonationKind> groups MEMBER groups NOTIFY changed)
  Q_PROPERTY(QString failure MEMBER failure NOTIFY changed)
  Q_PROPERTY(QString button MEMBER button NOTIFY changed)
  Q_PROPERTY(QString close MEMBER close NOTIFY changed)

 public:
  using Action = DonationsFeature::Action;
  explicit DonationsModel(std::function<void(Action)> sends) : send{std::move(sends)} {}

  void show(const DonationsPage& composed) { carry(composed, *this); }
  void appear() { send(Action::onAppear{}); }

  Q_INVOKABLE void choose(const QString& id) { send(Action::didChooseProduct{id.toStdString()}); }
  Q_INVOKABLE void tapButton() { send(Action::didTapButton{}); }

 Q_SIGNALS:
  void changed();

 private:
  std::function<void(Action)> send;
  QString title, text, failure, button, close;
  QList<DonationKind> groups;
};

}  // namespace mivo::app
