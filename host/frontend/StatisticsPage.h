// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <span>
#include <variant>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/statistics/CardRows.h"
#include "mivo/statistics/Cards.h"

namespace mivo::host {

/// A card of the statistics: what it is, what stands on it, and how many sixths of a row it takes where one, two or
/// three columns of cards fit.
struct ShownCard {
  using Content = std::variant<NoticeCard, SummaryCard, GoalWeightCard, BadgesCard, TimeRangeCard, DayBarsCard,
                               WeightChartCard, WeightFastingChartCard, TrendsCard>;
  CardKind kind = CardKind::tip;
  std::array<int, 3> sixths = {};
  Content content = {};
  bool operator==(const ShownCard&) const = default;
};

template <RecordOf<ShownCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [kind, sixths, content] = record;
  visit("kind", kind);
  visit("sixths", sixths);
  visit("content", content);
}

/// The statistics from top to bottom; the trends are one card, the last.
struct StatisticsPage {
  std::vector<ShownCard> cards;
  bool operator==(const StatisticsPage&) const = default;
};

template <RecordOf<StatisticsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [cards] = record;
  visit("cards", cards);
}

/// Of a composed screen.
StatisticsPage statisticsPage(std::span<const Card> cards);

}  // namespace mivo::host
