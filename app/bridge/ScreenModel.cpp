// SPDX-License-Identifier: MIT
#include "ScreenModel.h"

#include <algorithm>

namespace mivo::app {

int ScreenModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

QVariant ScreenModel::data(const QModelIndex& index, int role) const {
  const CardKind kind = shown[static_cast<std::size_t>(index.row())];
  if (role == KindRole) return variantOf(kind);
  return role == CardRole ? QVariant::fromValue(cards.at(kind).get()) : QVariant{};
}

void ScreenModel::show(const std::vector<Card>& composed) {
  std::vector<CardKind> next;
  for (const auto& [kind, content] : composed) {
    if (kind == CardKind::trend) continue;
    std::visit([&](const auto& card) { update(kind, card); }, content);
    next.push_back(kind);
  }
  if (const auto trends = trendsCard(composed)) {
    update(CardKind::trend, *trends);
    next.push_back(CardKind::trend);
  }
  if (next == shown) return;
  become(next);
  Q_EMIT cardsChanged();
}

template <class Content>
void ScreenModel::update(CardKind kind, const Content& composed) {
  if constexpr (ObjectRecord<Content>) {
    using Object = typename ObjectFor<Content>::Type;
    auto& card = cards[kind];
    if (!card) card = std::make_unique<Object>();
    static_cast<Object&>(*card).show(composed);
  }
}

// Cards keep their order, so that what stays need not move while others come and go.
void ScreenModel::become(const std::vector<CardKind>& next) {
  for (int row = rowCount(); row-- > 0;) {
    if (std::ranges::find(next, shown[static_cast<std::size_t>(row)]) != next.end()) continue;
    beginRemoveRows({}, row, row);
    shown.erase(shown.begin() + row);
    endRemoveRows();
  }
  for (int row = 0; row < static_cast<int>(next.size()); ++row) {
    const CardKind kind = next[static_cast<std::size_t>(row)];
    if (row < rowCount() && shown[static_cast<std::size_t>(row)] == kind) continue;
    beginInsertRows({}, row, row);
    shown.insert(shown.begin() + row, kind);
    endInsertRows();
  }
}

TimeRangeCardRecord* ScreenModel::timeRange() const {
  if (std::ranges::find(shown, CardKind::timeRange) == shown.end()) return nullptr;
  return static_cast<TimeRangeCardRecord*>(cards.at(CardKind::timeRange).get());
}

int ScreenModel::columnSpan(int place, int columns) const {
  return sixthsOfCard(shown, static_cast<std::size_t>(place), columns);
}

}  // namespace mivo::app
