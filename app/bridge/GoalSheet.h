// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "mivo/statistics/GoalWeightSheet.h"

namespace mivo::app {

/// A `GoalWeightSheet`.
struct GoalSheet {
  Q_GADGET
  QML_VALUE_TYPE(goalSheet)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString fieldText MEMBER fieldText CONSTANT)
  Q_PROPERTY(QString unit MEMBER unit CONSTANT)
  Q_PROPERTY(QString problem MEMBER problem CONSTANT)
  Q_PROPERTY(QString save MEMBER save CONSTANT)
  Q_PROPERTY(QString remove MEMBER remove CONSTANT)

 public:
  QString title, fieldText, unit, problem, save, remove;
  bool operator==(const GoalSheet&) const = default;
};

GoalSheet goalSheetOf(const GoalWeightSheet& sheet);

}  // namespace mivo::app
