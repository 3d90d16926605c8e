// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "app/bridge/Text.h"
#include "mivo/statistics/DonationsPage.h"

namespace mivo::app {

/// A `DonationChoice`.
struct DonationButton {
  Q_GADGET
  QML_VALUE_TYPE(donationButton)
  Q_PROPERTY(QString id MEMBER id CONSTANT)
  Q_PROPERTY(QString price MEMBER price CONSTANT)
  Q_PROPERTY(QString spoken MEMBER spoken CONSTANT)
  Q_PROPERTY(bool chosen MEMBER chosen CONSTANT)

 public:
  QString id, price, spoken;
  bool chosen = false;
  bool operator==(const DonationButton&) const = default;
};

/// A `DonationGroup`.
struct DonationKind {
  Q_GADGET
  QML_VALUE_TYPE(donationKind)
  Q_PROPERTY(QString label MEMBER label CONSTANT)
  Q_PROPERTY(QList<mivo::app::DonationButton> choices MEMBER choices CONSTANT)

 public:
  QString label;
  QList<DonationButton> choices;
  bool operator==(const DonationKind&) const = default;
};

/// The donation sheet, as it was composed.
class DonationsModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::DonationKind> groups READ groups NOTIFY changed)
  Q_PROPERTY(QString failure READ failure NOTIFY changed)
  Q_PROPERTY(QString button READ button NOTIFY changed)
  Q_PROPERTY(QString close READ close NOTIFY changed)

 public:
  using Action = DonationsFeature::Action;
  explicit DonationsModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void show(DonationsPage composed);
  void appear() { send(Action::onAppear{}); }

  QString title() const { return qString(page.title); }
  QString text() const { return qString(page.text); }
  QList<DonationKind> groups() const { return kinds; }
  QString failure() const { return qString(page.failure); }
  QString button() const { return qString(page.button); }
  QString close() const { return qString(page.close); }

  Q_INVOKABLE void choose(const QString& id) { send(Action::didChooseProduct{id.toStdString()}); }
  Q_INVOKABLE void tapButton() { send(Action::didTapButton{}); }

 Q_SIGNALS:
  void changed();

 private:
  std::function<void(Action)> send;
  DonationsPage page;
  QList<DonationKind> kinds;
};

}  // namespace mivo::app
