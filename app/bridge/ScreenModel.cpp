// SPDX-License-Identifier: MIT
#include "ScreenModel.h"

#include <algorithm>

#include "mivo/statistics/CardRows.h"

namespace mivo::app {
namespace {

template <class Model, class Content>
void take(std::unique_ptr<CardModel>& model, CardKind kind, const Content& content) {
  if (!model) model = std::make_unique<Model>(kind);
  static_cast<Model*>(model.get())->show(content);
}

}  // namespace

int ScreenModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

QVariant ScreenModel::data(const QModelIndex& index, int role) const {
  CardModel* card = shown[static_cast<std::size_t>(index.row())];
  if (role == KindRole) return card->kind();
  return role == CardRole ? QVariant::fromValue(card) : QVariant{};
}

QHash<int, QByteArray> ScreenModel::roleNames() const { return {{KindRole, "kind"}, {CardRole, "card"}}; }

void ScreenModel::show(const std::vector<Card>& composed) {
  std::vector<CardModel*> next;
  std::vector<TrendCard> trends;
  for (const Card& card : composed) {
    if (card.kind == CardKind::trend)
      trends.push_back(std::get<TrendCard>(card.content));
    else
      next.push_back(update(card.kind, card.content));
  }
  if (!trends.empty()) {
    auto& model = models[CardKind::trend];
    take<TrendsCardModel>(model, CardKind::trend, trends);
    next.push_back(model.get());
  }
  if (next == shown) return;
  become(next);
  dropHidden();
  Q_EMIT cardsChanged();
}

// What shows a card goes once events are handled; the card after it.
void ScreenModel::dropHidden() {
  for (auto entry = models.begin(); entry != models.end();) {
    if (std::ranges::find(shown, entry->second.get()) != shown.end()) {
      ++entry;
      continue;
    }
    CardModel* card = entry->second.release();
    card->setParent(this);
    card->deleteLater();
    entry = models.erase(entry);
  }
}

// Cards keep their order, so that what stays need not move while others come and go.
void ScreenModel::become(const std::vector<CardModel*>& next) {
  for (int row = rowCount(); row-- > 0;) {
    if (std::ranges::find(next, shown[static_cast<std::size_t>(row)]) != next.end()) continue;
    beginRemoveRows({}, row, row);
    shown.erase(shown.begin() + row);
    endRemoveRows();
  }
  for (int row = 0; row < static_cast<int>(next.size()); ++row) {
    CardModel* card = next[static_cast<std::size_t>(row)];
    if (row < rowCount() && shown[static_cast<std::size_t>(row)] == card) continue;
    beginInsertRows({}, row, row);
    shown.insert(shown.begin() + row, card);
    endInsertRows();
  }
}

TimeRangeCardModel* ScreenModel::timeRange() const {
  const auto found = models.find(CardKind::timeRange);
  return found == models.end() ? nullptr : static_cast<TimeRangeCardModel*>(found->second.get());
}

CardModel* ScreenModel::update(CardKind kind, const CardContent& content) {
  auto& model = models[kind];
  std::visit(
      [&]<class Content>(const Content& composed) {
        if constexpr (std::is_same_v<Content, NoticeCard>)
          take<NoticeCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, SummaryCard>)
          take<SummaryCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, GoalWeightCard>)
          take<GoalWeightCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, BadgesCard>)
          take<BadgesCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, TimeRangeCard>)
          take<TimeRangeCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, DayBarsCard>)
          take<DayBarsCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, WeightChartCard>)
          take<WeightChartCardModel>(model, kind, composed);
        else if constexpr (std::is_same_v<Content, WeightFastingChartCard>)
          take<WeightFastingChartCardModel>(model, kind, composed);
      },
      content);
  return model.get();
}

int ScreenModel::columnSpan(int place, int columns) const {
  std::vector<CardKind> kinds;
  for (const CardModel* card : shown) kinds.push_back(card->cardKind());
  return sixthsOfCard(kinds, static_cast<std::size_t>(place), columns);
}

}  // namespace mivo::app
