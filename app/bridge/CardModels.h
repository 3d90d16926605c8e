// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QSignalBlocker>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

#include "app/bridge/Records.h"
#include "mivo/statistics/Cards.h"

namespace mivo::app {

// The cards of the statistics screen as QML reads them. Each holds the content that was composed for it and says once
// that it changed; all texts are finished.

/// One card.
class CardModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  /// The case name of its `CardKind`.
  Q_PROPERTY(QString kind READ kind CONSTANT)

 public:
  explicit CardModel(CardKind shown) : own{shown} {}
  QString kind() const { return variantOf(own).toString(); }
  CardKind cardKind() const { return own; }

 Q_SIGNALS:
  void changed();

 private:
  CardKind own;
};

/// A card that holds one content.
template <class Content>
class ContentCard : public CardModel {
 public:
  using CardModel::CardModel;

  void show(const Content& composed) {
    if (content == composed) return;
    content = composed;
    {
      const QSignalBlocker once{this};
      take(composed);
    }
    Q_EMIT changed();
  }

 protected:
  virtual void take(const Content& composed) {
    if constexpr (Record<const Content>) carry(composed, *this);
  }

 private:
  std::optional<Content> content;
};

/// A card that says something and offers at most one thing to do.
class NoticeCardModel : public ContentCard<NoticeCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString text MEMBER text NOTIFY changed)
  Q_PROPERTY(QString button MEMBER button NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title, text, button;
};

/// The totals, six of them.
class SummaryCardModel : public ContentCard<SummaryCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString period MEMBER period NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::SummaryFigureRecord> figures MEMBER figures NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title, period;
  QList<SummaryFigureRecord> figures;
};

/// How far the goal weight is.
class GoalWeightCardModel : public ContentCard<GoalWeightCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString remaining MEMBER remaining NOTIFY changed)
  Q_PROPERTY(QString current MEMBER current NOTIFY changed)
  Q_PROPERTY(QString currentLabel MEMBER currentLabel NOTIFY changed)
  Q_PROPERTY(QString goal MEMBER goal NOTIFY changed)
  Q_PROPERTY(QString goalLabel MEMBER goalLabel NOTIFY changed)
  Q_PROPERTY(QString trendFigure MEMBER trendFigure NOTIFY changed)
  Q_PROPERTY(QString afterFigure MEMBER afterFigure NOTIFY changed)
  Q_PROPERTY(QString button MEMBER button NOTIFY changed)
  /// How much of the way is done, 0 to 1; negative where it cannot be told.
  Q_PROPERTY(double fraction MEMBER fraction NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 protected:
  void take(const GoalWeightCard& composed) override;

 private:
  QString title, remaining, current, currentLabel, goal, goalLabel, trendFigure, afterFigure, button;
  double fraction = -1;
};

/// The best badge of each family.
class BadgesCardModel : public ContentCard<BadgesCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(mivo::app::BadgeHalfRecord milestone MEMBER milestone NOTIFY changed)
  Q_PROPERTY(mivo::app::BadgeHalfRecord streak MEMBER streak NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title;
  BadgeHalfRecord milestone, streak;
};

/// The picker of the range.
class TimeRangeCardModel : public ContentCard<TimeRangeCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString prompt MEMBER prompt NOTIFY changed)
  Q_PROPERTY(QList<QString> options MEMBER options NOTIFY changed)
  Q_PROPERTY(int selectedIndex MEMBER selectedIndex NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title, prompt;
  QStringList options;
  int selectedIndex = 0;
};

/// A chart of day bars; its bars are in a model of their own.
class DayBarsCardModel : public ContentCard<DayBarsCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString empty MEMBER empty NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title, empty;
};

/// The chart of weights.
class WeightChartCardModel : public ContentCard<WeightChartCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString averageLabel MEMBER averageLabel NOTIFY changed)
  Q_PROPERTY(QString empty MEMBER empty NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title, averageLabel, empty;
};

/// The chart of weight and fasting hours.
class WeightFastingChartCardModel : public ContentCard<WeightFastingChartCard> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QString weightLegend MEMBER weightLegend NOTIFY changed)
  Q_PROPERTY(QString fastingLegend MEMBER fastingLegend NOTIFY changed)
  Q_PROPERTY(QString empty MEMBER empty NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 private:
  QString title, weightLegend, fastingLegend, empty;
};

/// All rows of the trends, in one card.
class TrendsCardModel : public ContentCard<std::vector<TrendCard>> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cards come from the screen")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::TrendRow> rows MEMBER rows NOTIFY changed)

 public:
  using ContentCard::ContentCard;

 protected:
  void take(const std::vector<TrendCard>& composed) override;

 private:
  QString title;
  QList<TrendRow> rows;
};

}  // namespace mivo::app
