// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "app/bridge/Records.h"
#include "host/pages/ControlWords.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

/// The `host::ControlWords`.
class Words : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(QString fasting MEMBER fasting NOTIFY changed)
  Q_PROPERTY(QString statistics MEMBER statistics NOTIFY changed)
  Q_PROPERTY(QString settings MEMBER settings NOTIFY changed)
  Q_PROPERTY(QString close MEMBER close NOTIFY changed)
  Q_PROPERTY(QString back MEMBER back NOTIFY changed)
  Q_PROPERTY(QString less MEMBER less NOTIFY changed)
  Q_PROPERTY(QString more MEMBER more NOTIFY changed)
  Q_PROPERTY(QString chart MEMBER chart NOTIFY changed)
  Q_PROPERTY(QString copyValue MEMBER copyValue NOTIFY changed)
  Q_PROPERTY(QString showAsTable MEMBER showAsTable NOTIFY changed)
  Q_PROPERTY(QString cannotOpen MEMBER cannotOpen NOTIFY changed)
  Q_PROPERTY(QString tryAgain MEMBER tryAgain NOTIFY changed)

 public:
  explicit Words(QObject* parent = nullptr) : QObject{parent} {
    carry(host::controlWords(*dependency(&Dependencies::texts)), *this);
  }

 Q_SIGNALS:
  void changed();

 private:
  QString fasting, statistics, settings, close, back, less, more, chart, copyValue, showAsTable, cannotOpen, tryAgain;
};

}  // namespace mivo::app
