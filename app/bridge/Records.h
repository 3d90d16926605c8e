// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QMetaProperty>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <concepts>
#include <string>
#include <string_view>

#include "app/bridge/Text.h"

namespace mivo::app {

// Composed records of texts as QML reads them, each text under the name that it has in its record.

/// A `GoalWeightSheet`.
struct GoalSheet {
  Q_GADGET
  QML_VALUE_TYPE(goalSheet)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString fieldText MEMBER fieldText)
  Q_PROPERTY(QString unit MEMBER unit)
  Q_PROPERTY(QString problem MEMBER problem)
  Q_PROPERTY(QString save MEMBER save)
  Q_PROPERTY(QString remove MEMBER remove)

 public:
  QString title, fieldText, unit, problem, save, remove;
  bool operator==(const GoalSheet&) const = default;
};

/// A `FeedbackSheet`.
struct FeedbackTexts {
  Q_GADGET
  QML_VALUE_TYPE(feedbackTexts)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString ideaLabel MEMBER ideaLabel)
  Q_PROPERTY(QString replyLabel MEMBER replyLabel)
  Q_PROPERTY(QString replyPlaceholder MEMBER replyPlaceholder)
  Q_PROPERTY(QString note MEMBER note)
  Q_PROPERTY(QString button MEMBER button)

 public:
  QString title, ideaLabel, replyLabel, replyPlaceholder, note, button;
  bool operator==(const FeedbackTexts&) const = default;
};

/// `recordOf<GoalSheet>(composeGoalWeightSheet(...))`: what is no text stays out.
template <class Gadget, class Composed>
Gadget recordOf(const Composed& composed) {
  Gadget gadget;
  const QMetaObject& type = Gadget::staticMetaObject;
  fields(composed, [&]<class Field>(std::string_view name, const Field& field) {
    if constexpr (std::same_as<Field, std::string>)
      type.property(type.indexOfProperty(name.data())).writeOnGadget(&gadget, qString(field));
  });
  return gadget;
}

}  // namespace mivo::app
