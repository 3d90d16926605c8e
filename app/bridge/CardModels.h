// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <algorithm>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

#include "app/bridge/Text.h"
#include "mivo/statistics/Cards.h"

namespace mivo::app {

// The cards of the statistics screen as QML reads them. Each holds the content that was composed for it and says once
// that it changed; all texts are finished.

/// One card: what kind it is, and how many of the screen's six columns it takes.
class CardModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(Kind kind READ kind CONSTANT)

 public:
  enum class Kind {
    Tip,
    Start,
    Configure,
    Summary,
    OverlappingFasts,
    Donation,
    Roadmap,
    HealthData,
    AddWeight,
    GoalWeight,
    Badges,
    TimeRange,
    FastingChart,
    EatingChart,
    WeightChart,
    WeightFastingChart,
    Trends
  };
  Q_ENUM(Kind)

  explicit CardModel(Kind shown) : own{shown} {}
  Kind kind() const { return own; }

 Q_SIGNALS:
  void changed();

 private:
  Kind own;
};

/// A card that holds one content.
template <class Content>
class ContentCard : public CardModel {
 public:
  ContentCard(Kind kind, Content composed) : CardModel{kind}, content{std::move(composed)} {}

  void setContent(const Content& composed) {
    if (content == composed) return;
    content = composed;
    Q_EMIT changed();
  }

 protected:
  Content content;
};

/// A card that says something and offers at most one thing to do.
class NoticeCardModel : public ContentCard<NoticeCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(QString button READ button NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  QString text() const { return qString(content.text); }
  QString button() const { return qString(content.button); }
};

/// The totals, six of them.
class SummaryCardModel : public ContentCard<SummaryCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString period READ period NOTIFY changed)
  Q_PROPERTY(QStringList values READ values NOTIFY changed)
  Q_PROPERTY(QStringList labels READ labels NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  QString period() const { return qString(content.period); }
  QStringList values() const { return column(&SummaryFigure::value); }
  QStringList labels() const { return column(&SummaryFigure::label); }

 private:
  QStringList column(std::string SummaryFigure::* text) const {
    QStringList all;
    for (const SummaryFigure& figure : content.figures) all.append(qString(figure.*text));
    return all;
  }
};

/// How far the goal weight is.
class GoalWeightCardModel : public ContentCard<GoalWeightCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString remaining READ remaining NOTIFY changed)
  Q_PROPERTY(QString current READ current NOTIFY changed)
  Q_PROPERTY(QString currentLabel READ currentLabel NOTIFY changed)
  Q_PROPERTY(QString goal READ goal NOTIFY changed)
  Q_PROPERTY(QString goalLabel READ goalLabel NOTIFY changed)
  Q_PROPERTY(QString trendFigure READ trendFigure NOTIFY changed)
  Q_PROPERTY(QString afterFigure READ afterFigure NOTIFY changed)
  Q_PROPERTY(QString button READ button NOTIFY changed)
  /// How much of the way is done, 0 to 1; negative where it cannot be told.
  Q_PROPERTY(qreal fraction READ fraction NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  qreal fraction() const { return content.fraction.value_or(-1); }
  QString title() const { return qString(content.title); }
  QString remaining() const { return qString(content.remaining); }
  QString current() const { return qString(content.current); }
  QString currentLabel() const { return qString(content.currentLabel); }
  QString goal() const { return qString(content.goal); }
  QString goalLabel() const { return qString(content.goalLabel); }
  QString trendFigure() const { return qString(content.trendFigure); }
  QString afterFigure() const { return qString(content.afterFigure); }
  QString button() const { return qString(content.button); }
};

/// The best badge of each family.
class BadgesCardModel : public ContentCard<BadgesCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(int milestoneThreshold READ milestoneThreshold NOTIFY changed)
  Q_PROPERTY(bool milestoneIsEarned READ milestoneIsEarned NOTIFY changed)
  Q_PROPERTY(QString milestoneLabel READ milestoneLabel NOTIFY changed)
  Q_PROPERTY(QString milestoneProgress READ milestoneProgress NOTIFY changed)
  Q_PROPERTY(qreal milestoneFraction READ milestoneFraction NOTIFY changed)
  Q_PROPERTY(int streakThreshold READ streakThreshold NOTIFY changed)
  Q_PROPERTY(bool streakIsEarned READ streakIsEarned NOTIFY changed)
  Q_PROPERTY(QString streakLabel READ streakLabel NOTIFY changed)
  Q_PROPERTY(QString streakProgress READ streakProgress NOTIFY changed)
  Q_PROPERTY(qreal streakFraction READ streakFraction NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  int milestoneThreshold() const { return static_cast<int>(content.milestone.threshold); }
  bool milestoneIsEarned() const { return content.milestone.isEarned; }
  QString milestoneLabel() const { return qString(content.milestone.label); }
  QString milestoneProgress() const { return qString(content.milestone.progress); }
  qreal milestoneFraction() const { return content.milestone.fraction; }
  int streakThreshold() const { return static_cast<int>(content.streak.threshold); }
  bool streakIsEarned() const { return content.streak.isEarned; }
  QString streakLabel() const { return qString(content.streak.label); }
  QString streakProgress() const { return qString(content.streak.progress); }
  qreal streakFraction() const { return content.streak.fraction; }
};

/// The picker of the range.
class TimeRangeCardModel : public ContentCard<TimeRangeCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString prompt READ prompt NOTIFY changed)
  Q_PROPERTY(QList<QString> options READ options NOTIFY changed)
  Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  QString prompt() const { return qString(content.prompt); }
  QStringList options() const { return all(); }
  int selectedIndex() const { return static_cast<int>(all().indexOf(qString(content.selected))); }

 private:
  QStringList all() const {
    QStringList texts;
    for (const std::string& option : content.options) texts.append(qString(option));
    return texts;
  }
};

/// A chart of day bars; its bars are in a model of their own.
class DayBarsCardModel : public ContentCard<DayBarsCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  QString emptyText() const { return qString(content.empty); }
};

/// The chart of weights.
class WeightChartCardModel : public ContentCard<WeightChartCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString averageLabel READ averageLabel NOTIFY changed)
  Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  QString averageLabel() const { return qString(content.averageLabel); }
  QString emptyText() const { return qString(content.empty); }
};

/// The chart of weight and fasting hours.
class WeightFastingChartCardModel : public ContentCard<WeightFastingChartCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString weightLegend READ weightLegend NOTIFY changed)
  Q_PROPERTY(QString fastingLegend READ fastingLegend NOTIFY changed)
  Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return qString(content.title); }
  QString weightLegend() const { return qString(content.weightLegend); }
  QString fastingLegend() const { return qString(content.fastingLegend); }
  QString emptyText() const { return qString(content.empty); }
};

/// One row of the trends.
class TrendRow {
  Q_GADGET
  QML_VALUE_TYPE(trendRow)
  Q_PROPERTY(QString zone READ zone CONSTANT)
  Q_PROPERTY(QString name READ name CONSTANT)
  Q_PROPERTY(QString detail READ detail CONSTANT)
  Q_PROPERTY(QString sentence READ sentence CONSTANT)
  Q_PROPERTY(QString thisLabel READ thisLabel CONSTANT)
  Q_PROPERTY(QString lastLabel READ lastLabel CONSTANT)
  Q_PROPERTY(QString perDay READ perDay CONSTANT)
  Q_PROPERTY(QString thisAverage READ thisAverage CONSTANT)
  Q_PROPERTY(QString lastAverage READ lastAverage CONSTANT)
  Q_PROPERTY(qreal thisFraction READ thisFraction CONSTANT)
  Q_PROPERTY(qreal lastFraction READ lastFraction CONSTANT)
  Q_PROPERTY(bool thisInside READ thisInside CONSTANT)
  Q_PROPERTY(bool lastInside READ lastInside CONSTANT)

 public:
  TrendRow() = default;
  explicit TrendRow(TrendCard shown) : row{std::make_shared<const TrendCard>(std::move(shown))} {}

  QString zone() const { return QString::fromUtf8(caseName(row->zone).data()); }
  QString name() const { return qString(row->name); }
  QString detail() const { return qString(row->detail); }
  QString sentence() const { return qString(row->display.averageFastTimeRangeText); }
  QString thisLabel() const { return qString(row->thisLabel); }
  QString lastLabel() const { return qString(row->lastLabel); }
  QString perDay() const { return qString(row->perDay); }
  QString thisAverage() const { return qString(row->display.thisTimeRangeAvg); }
  QString lastAverage() const { return qString(row->display.lastTimeRangeAvg); }
  qreal thisFraction() const { return drawn(row->display.thisTimeRangeFraction); }
  qreal lastFraction() const { return drawn(row->display.lastTimeRangeFraction); }
  bool thisInside() const { return row->display.thisTimeRangeInsideCapsule; }
  bool lastInside() const { return row->display.lastTimeRangeInsideCapsule; }
  bool operator==(const TrendRow&) const = default;

 private:
  // A negative average, and one that is no number, has no bar.
  static qreal drawn(double fraction) { return fraction > 0 ? std::min(fraction, 1.0) : 0; }

  std::shared_ptr<const TrendCard> row;  // QML needs a row of nothing, which a card has not
};

/// All rows of the trends, in one card.
class TrendsCardModel : public ContentCard<std::vector<TrendCard>> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::TrendRow> rows READ rows NOTIFY changed)

 public:
  using ContentCard::ContentCard;
  QString title() const { return content.empty() ? QString{} : qString(content.front().section); }
  QList<TrendRow> rows() const {
    QList<TrendRow> all;
    for (const TrendCard& row : content) all.append(TrendRow{row});
    return all;
  }
};

}  // namespace mivo::app
