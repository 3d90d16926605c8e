// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QMetaProperty>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <concepts>
#include <ranges>
#include <string>
#include <string_view>
#include <utility>

#include "app/bridge/Carry.h"
#include "host/pages/Message.h"
#include "host/pages/SettingsPage.h"
#include "mivo/achievements/BadgesPage.h"
#include "mivo/roadmap/FeedbackSheet.h"
#include "mivo/roadmap/RoadmapPage.h"
#include "mivo/statistics/Cards.h"
#include "mivo/statistics/DonationsPage.h"
#include "mivo/statistics/GoalWeightSheet.h"

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

 public:
  QString title, value;
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

/// A `SummaryFigure`.
struct SummaryFigureRecord {
  Q_GADGET
  QML_VALUE_TYPE(summaryFigureRecord)
  Q_PROPERTY(QString label MEMBER label)
  Q_PROPERTY(QString value MEMBER value)

 public:
  QString label, value;
  bool operator==(const SummaryFigureRecord&) const = default;
};

/// A `BadgeItem`.
struct BadgeEntry {
  Q_GADGET
  QML_VALUE_TYPE(badgeEntry)
  Q_PROPERTY(int threshold MEMBER threshold)
  Q_PROPERTY(bool isEarned MEMBER isEarned)
  Q_PROPERTY(QString number MEMBER number)
  Q_PROPERTY(QString label MEMBER label)

 public:
  int threshold = 0;
  bool isEarned = false;
  QString number, label;
  bool operator==(const BadgeEntry&) const = default;
};

/// A `BadgeFamilyPage`.
struct BadgeFamily {
  Q_GADGET
  QML_VALUE_TYPE(badgeFamily)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString count MEMBER count)
  Q_PROPERTY(QString countLabel MEMBER countLabel)
  Q_PROPERTY(QString remaining MEMBER remaining)
  Q_PROPERTY(QString allLabel MEMBER allLabel)
  Q_PROPERTY(QString spoken MEMBER spoken)
  Q_PROPERTY(double fraction MEMBER fraction)
  Q_PROPERTY(mivo::app::BadgeEntry present MEMBER present)
  Q_PROPERTY(QList<mivo::app::BadgeEntry> all MEMBER all)
  Q_PROPERTY(QList<mivo::app::BadgeEntry> around MEMBER around)

 public:
  QString title, count, countLabel, remaining, allLabel, spoken;
  double fraction = 0;
  BadgeEntry present;
  QList<BadgeEntry> all, around;
  bool operator==(const BadgeFamily&) const = default;
};

/// A `DonationChoice`.
struct DonationButton {
  Q_GADGET
  QML_VALUE_TYPE(donationButton)
  Q_PROPERTY(QString id MEMBER id)
  Q_PROPERTY(QString price MEMBER price)
  Q_PROPERTY(QString spoken MEMBER spoken)
  Q_PROPERTY(bool isChosen MEMBER isChosen)

 public:
  QString id, price, spoken;
  bool isChosen = false;
  bool operator==(const DonationButton&) const = default;
};

/// A `DonationGroup`.
struct DonationKind {
  Q_GADGET
  QML_VALUE_TYPE(donationKind)
  Q_PROPERTY(QString label MEMBER label)
  Q_PROPERTY(QList<mivo::app::DonationButton> choices MEMBER choices)

 public:
  QString label;
  QList<DonationButton> choices;
  bool operator==(const DonationKind&) const = default;
};

/// A `RoadmapFilter`.
struct RoadmapFilterChip {
  Q_GADGET
  QML_VALUE_TYPE(roadmapFilterChip)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(bool isChosen MEMBER isChosen)

 public:
  QString name;
  bool isChosen = false;
  bool operator==(const RoadmapFilterChip&) const = default;
};

/// A `RoadmapNotice`.
struct RoadmapNoticeText {
  Q_GADGET
  QML_VALUE_TYPE(roadmapNoticeText)
  Q_PROPERTY(bool hasFailed MEMBER hasFailed)
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString text MEMBER text)
  Q_PROPERTY(QString button MEMBER button)

 public:
  bool hasFailed = false;
  QString title, text, button;
  bool operator==(const RoadmapNoticeText&) const = default;
};

// The value that shows a record. Only declared: these name types.
GoalSheet shownAs(const GoalWeightSheet&);
FeedbackTexts shownAs(const FeedbackSheet&);
MessageTexts shownAs(const host::Message&);
Choice shownAs(const host::Choice&);
Steps shownAs(const host::Steps&);
BadgeHalfRecord shownAs(const BadgeFigure&);
SummaryFigureRecord shownAs(const SummaryFigure&);
BadgeEntry shownAs(const BadgeItem&);
BadgeFamily shownAs(const BadgeFamilyPage&);
DonationButton shownAs(const DonationChoice&);
DonationKind shownAs(const DonationGroup&);
TrendRow shownAs(const TrendCard&);
RoadmapFilterChip shownAs(const RoadmapFilter&);
RoadmapNoticeText shownAs(const RoadmapNotice&);

template <class Composed>
concept ShownAsValue = requires(const Composed& composed) { shownAs(composed); };
template <ShownAsValue Composed>
using ShownValue = decltype(shownAs(std::declval<const Composed&>()));

template <ShownAsValue Composed>
ShownValue<Composed> valueOf(const Composed& composed);

/// A field for a property: texts and numbers as they are carried, records as values, lists of either.
template <class Field>
QVariant propertyOf(const Field& field) {
  if constexpr (Carried<Field>) {
    return variantOf(field);
  } else if constexpr (ShownAsValue<Field>) {
    return QVariant::fromValue(valueOf(field));
  } else if constexpr (std::ranges::range<Field>) {
    using Element = std::ranges::range_value_t<Field>;
    if constexpr (std::same_as<Element, std::string>) {
      QStringList texts;
      for (const std::string& text : field) texts.append(QString::fromStdString(text));
      return texts;
    } else if constexpr (ShownAsValue<Element>) {
      QList<ShownValue<Element>> values;
      for (const Element& element : field) values.append(valueOf(element));
      return QVariant::fromValue(values);
    }
  }
  return {};
}

/// A record as a value of QML, each field under its name.
template <ShownAsValue Composed>
ShownValue<Composed> valueOf(const Composed& composed) {
  ShownValue<Composed> value;
  const QMetaObject& type = value.staticMetaObject;
  fields(composed, [&](std::string_view name, const auto& field) {
    type.property(type.indexOfProperty(name.data())).writeOnGadget(&value, propertyOf(field));
  });
  return value;
}

/// Writes a property that has the name; without one nothing happens.
void carryField(QObject& model, std::string_view name, const QVariant& value);

/// Gives each property of a model the field of its name; what has rows of its own is left alone. Properties that are
/// `MEMBER` with a signal of their own tell QML only where they differ.
template <class Composed>
void carry(const Composed& composed, QObject& model) {
  fields(composed, [&](std::string_view name, const auto& field) {
    if (const QVariant value = propertyOf(field); value.isValid()) carryField(model, name, value);
  });
}

}  // namespace mivo::app
