// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <optional>

#include "host/app/AppFeature.h"

namespace mivo::app {

/// What the repair makes of one fast, or of several that become one.
struct RepairRow {
  Q_GADGET
  QML_VALUE_TYPE(repairRow)
  Q_PROPERTY(QString date MEMBER date CONSTANT)
  Q_PROPERTY(QString kind MEMBER kind CONSTANT)
  Q_PROPERTY(QString before MEMBER before CONSTANT)
  Q_PROPERTY(QString after MEMBER after CONSTANT)

 public:
  QString date, kind, before, after;
  bool operator==(const RepairRow&) const = default;
};

/// The repair of overlapping fasts that is proposed, for the user to agree to.
class RepairModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(bool proposed READ isProposed NOTIFY changed)
  Q_PROPERTY(QString summary READ summary NOTIFY changed)
  Q_PROPERTY(QString buttonText READ buttonText NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::RepairRow> rows READ rows NOTIFY changed)

 public:
  using Action = host::AppFeature::Action;
  explicit RepairModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const std::optional<host::HistoryChange>& proposal);

  bool isProposed() const { return change.has_value(); }
  QString summary() const;
  QString buttonText() const;
  QList<RepairRow> rows() const;

  Q_INVOKABLE void confirm() { send(Action::didConfirmOverlapRepair{}); }
  Q_INVOKABLE void cancel();

 Q_SIGNALS:
  void changed();

 private:
  std::int64_t count() const { return static_cast<std::int64_t>(change ? change->removedFasts.size() : 0); }

  std::function<void(Action)> send;
  std::optional<host::HistoryChange> change;
};

}  // namespace mivo::app
