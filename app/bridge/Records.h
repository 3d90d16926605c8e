// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QMetaProperty>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

#include "app/bridge/Carry.h"

namespace mivo::app {

// Composed records as values of QML, each field under its own name.

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

/// A `host::Message`.
struct MessageTexts {
  Q_GADGET
  QML_VALUE_TYPE(messageTexts)
  Q_PROPERTY(QString text MEMBER text)
  Q_PROPERTY(QString button MEMBER button)
  Q_PROPERTY(bool isFailure MEMBER isFailure)
  Q_PROPERTY(double seconds MEMBER seconds)

 public:
  QString text, button;
  bool isFailure = false;
  double seconds = 0;
  bool operator==(const MessageTexts&) const = default;
};

/// A `host::Choice`.
struct Choice {
  Q_GADGET
  QML_VALUE_TYPE(choice)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QList<QString> options MEMBER options)
  Q_PROPERTY(int chosen MEMBER chosen)
  Q_PROPERTY(QString value MEMBER value)
  Q_PROPERTY(QString note MEMBER note)

 public:
  QString title, value, note;
  QStringList options;
  int chosen = 0;
  bool operator==(const Choice&) const = default;
};

/// A `host::Steps`.
struct Steps {
  Q_GADGET
  QML_VALUE_TYPE(steps)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(int value MEMBER value)
  Q_PROPERTY(int least MEMBER least)
  Q_PROPERTY(int most MEMBER most)
  Q_PROPERTY(int step MEMBER step)

 public:
  QString title;
  int value = 0, least = 0, most = 0, step = 1;
  bool operator==(const Steps&) const = default;
};

/// `recordOf<GoalSheet>(composeGoalWeightSheet(...))`
template <class Gadget, class Composed>
Gadget recordOf(const Composed& composed) {
  Gadget gadget;
  const QMetaObject& type = Gadget::staticMetaObject;
  fields(composed, [&]<class Field>(std::string_view name, const Field& field) {
    const QMetaProperty property = type.property(type.indexOfProperty(name.data()));
    if constexpr (Carried<Field>) {
      property.writeOnGadget(&gadget, variantOf(field));
    } else if constexpr (std::same_as<Field, std::vector<std::string>>) {
      QStringList texts;
      for (const std::string& text : field) texts.append(QString::fromStdString(text));
      property.writeOnGadget(&gadget, texts);
    }
  });
  return gadget;
}

}  // namespace mivo::app
