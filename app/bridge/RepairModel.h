// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <optional>

#include "app/bridge/RecordRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/RepairSheet.h"

namespace mivo::app {

/// The `host::RepairSheet` of what is proposed; once nothing is any more, as it was last.
class RepairModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(bool isProposed READ isProposed NOTIFY isProposedChanged)
  Q_PROPERTY(QString title MEMBER title NOTIFY textsChanged)
  Q_PROPERTY(QString summary MEMBER summary NOTIFY textsChanged)
  Q_PROPERTY(mivo::app::RecordRows* rows READ rows CONSTANT)
  Q_PROPERTY(QString button MEMBER button NOTIFY textsChanged)
  Q_PROPERTY(QString cancelLabel MEMBER cancelLabel NOTIFY textsChanged)

 public:
  using Action = host::AppFeature::Action;
  RepairModel(std::function<PageClients()> clients, std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const std::optional<host::HistoryChange>& proposal);
  bool isProposed() const { return change.has_value(); }
  RecordRows* rows() { return &repairs; }

  Q_INVOKABLE void confirm() { send(Action::didConfirmOverlapRepair{}); }
  Q_INVOKABLE void cancel();

 Q_SIGNALS:
  void isProposedChanged();
  void textsChanged();

 private:
  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  std::optional<host::HistoryChange> change;
  RecordRows repairs{rolesOf<host::RepairRow>()};
  QString title, summary, button, cancelLabel;
};

}  // namespace mivo::app
