// SPDX-License-Identifier: MIT
#include "mivo/statistics/CardRows.h"

#include <algorithm>
#include <optional>

namespace mivo {
namespace {

enum class Group { tiles, weightAndBadges, dayBars, lines };

std::optional<Group> groupOf(CardKind kind) {
  switch (kind) {
    case CardKind::donation:
    case CardKind::roadmap:
      return Group::tiles;
    case CardKind::addWeight:
    case CardKind::goalWeight:
    case CardKind::badges:
      return Group::weightAndBadges;
    case CardKind::fastingChart:
    case CardKind::eatingChart:
      return Group::dayBars;
    case CardKind::weightChart:
    case CardKind::weightFastingChart:
      return Group::lines;
    default:
      return std::nullopt;
  }
}

}  // namespace

int sixthsOfCard(std::span<const CardKind> kinds, std::size_t place, int columns) {
  if (columns < 2 || place >= kinds.size()) return sixthsOfARow;
  const auto group = groupOf(kinds[place]);
  if (!group) return sixthsOfARow;
  const auto isOfGroup = [group](CardKind kind) { return groupOf(kind) == group; };
  const auto count = std::ranges::count_if(kinds, isOfGroup);
  const auto before = std::ranges::count_if(kinds.first(place), isOfGroup);
  const auto inRow = std::min<std::ptrdiff_t>(count, columns);
  const bool isLeftOver = count % inRow == 1 && before == count - 1;
  return isLeftOver ? sixthsOfARow : sixthsOfARow / static_cast<int>(inRow);
}

std::optional<TrendsCard> trendsCard(std::span<const Card> cards) {
  TrendsCard trends;
  for (const Card& card : cards)
    if (const auto* row = std::get_if<TrendCard>(&card.content)) trends.rows.push_back(*row);
  if (trends.rows.empty()) return std::nullopt;
  trends.title = trends.rows.front().section;
  return trends;
}

}  // namespace mivo
