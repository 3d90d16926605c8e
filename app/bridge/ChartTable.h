// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace mivo::app {

/// A chart read as a table, the latest row first.
/// Who derives from it names it with its namespace: Qt describes types to QML by their base's name as it is written.
class ChartTable : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("charts are tables")
  Q_PROPERTY(int rowCount READ rowCount NOTIFY tableChanged)

 public:
  using QObject::QObject;
  virtual int rowCount() const = 0;
  Q_INVOKABLE virtual QString date(int row) const = 0;
  Q_INVOKABLE virtual QString value(int row) const = 0;

 Q_SIGNALS:
  void tableChanged();
};

}  // namespace mivo::app
