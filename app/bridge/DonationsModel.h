// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "mivo/statistics/DonationsFeature.h"

namespace mivo::app {

/// One way to give.
struct DonationChoice {
  Q_GADGET
  QML_VALUE_TYPE(donationChoice)
  Q_PROPERTY(QString id MEMBER id CONSTANT)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString price MEMBER price CONSTANT)

 public:
  QString id, title, price;
  bool operator==(const DonationChoice&) const = default;
};

/// The donation sheet: the ways to give, once they are loaded.
class DonationsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QList<mivo::app::DonationChoice> oneTime READ oneTime NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::DonationChoice> recurring READ recurring NOTIFY changed)
  Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
  /// One sentence while there is nothing to choose from.
  Q_PROPERTY(QString failure READ failure NOTIFY changed)
  Q_PROPERTY(QString chosen READ chosen NOTIFY changed)
  /// "Donate 10 €"
  Q_PROPERTY(QString buttonText READ buttonText NOTIFY changed)

 public:
  using Action = DonationsFeature::Action;
  explicit DonationsModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const DonationsFeature::State& state);
  void appear() { send(Action::onAppear{}); }

  QList<DonationChoice> oneTime() const { return once; }
  QList<DonationChoice> recurring() const { return monthly; }
  bool isLoading() const { return loading; }
  QString failure() const { return failed; }
  QString chosen() const { return chosenID; }
  QString buttonText() const;

  Q_INVOKABLE void choose(const QString& id);
  Q_INVOKABLE void donate() { send(Action::didTapProduct{chosenID.toStdString()}); }
  Q_INVOKABLE void tryAgain() { send(Action::didTapButton{}); }

 Q_SIGNALS:
  void changed();

 private:
  std::function<void(Action)> send;
  QList<DonationChoice> once, monthly;
  bool loading = false;
  QString failed, chosenID;
};

}  // namespace mivo::app
