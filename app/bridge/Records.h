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

/// A `BadgeFigure`.
struct BadgeHalfRecord {
  Q_GADGET
  QML_VALUE_TYPE(badgeHalfRecord)
  Q_PROPERTY(int threshold MEMBER threshold)
  Q_PROPERTY(QString number MEMBER number)
  Q_PROPERTY(bool isEarned MEMBER isEarned)
  Q_PROPERTY(QString label MEMBER label)
  Q_PROPERTY(QString progress MEMBER progress)
  Q_PROPERTY(double fraction MEMBER fraction)

 public:
  int threshold = 1;
  QString number, label, progress;
  bool isEarned = false;
  double fraction = 0;
  bool operator==(const BadgeHalfRecord&) const = default;
};

/// A `TrendCard`; bars are 0 to 1 long.
struct TrendRow {
  Q_GADGET
  QML_VALUE_TYPE(trendRow)
  Q_PROPERTY(QString zone MEMBER zone)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(QString detail MEMBER detail)
  Q_PROPERTY(QString thisLabel MEMBER thisLabel)
  Q_PROPERTY(QString lastLabel MEMBER lastLabel)
  Q_PROPERTY(QString perDay MEMBER perDay)
  Q_PROPERTY(QString averageFastTimeRangeText MEMBER averageFastTimeRangeText)
  Q_PROPERTY(QString thisTimeRangeAvg MEMBER thisTimeRangeAvg)
  Q_PROPERTY(QString lastTimeRangeAvg MEMBER lastTimeRangeAvg)
  Q_PROPERTY(double thisTimeRangeFraction MEMBER thisTimeRangeFraction)
  Q_PROPERTY(double lastTimeRangeFraction MEMBER lastTimeRangeFraction)
  Q_PROPERTY(bool thisTimeRangeInsideCapsule MEMBER thisTimeRangeInsideCapsule)
  Q_PROPERTY(bool lastTimeRangeInsideCapsule MEMBER lastTimeRangeInsideCapsule)

 public:
  QString zone, name, detail, thisLabel, lastLabel, perDay, averageFastTimeRangeText, thisTimeRangeAvg,
      lastTimeRangeAvg;
  double thisTimeRangeFraction = 0, lastTimeRangeFraction = 0;
  bool thisTimeRangeInsideCapsule = false, lastTimeRangeInsideCapsule = false;
  bool operator==(const TrendRow&) const = default;
};

inline QStringList textsOf(const std::vector<std::string>& texts) {
  QStringList all;
  for (const std::string& text : texts) all.append(QString::fromStdString(text));
  return all;
}

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
      property.writeOnGadget(&gadget, textsOf(field));
    }
  });
  return gadget;
}

}  // namespace mivo::app
