// SPDX-License-Identifier: MIT
#include "host/frontend/StatisticsPage.h"

#include <type_traits>
#include <utility>

namespace mivo::host {

StatisticsPage statisticsPage(std::span<const Card> cards) {
  StatisticsPage page;
  for (const auto& [kind, content] : cards)
    std::visit(
        [&, shown = kind]<class Content>(const Content& card) {
          if constexpr (!std::is_same_v<Content, TrendCard>) page.cards.push_back({shown, {}, card});
        },
        content);
  if (auto trends = trendsCard(cards)) page.cards.push_back({CardKind::trend, {}, *std::move(trends)});
  std::vector<CardKind> kinds;
  kinds.reserve(page.cards.size());
  for (const ShownCard& card : page.cards) kinds.push_back(card.kind);
  for (std::size_t place = 0; place < kinds.size(); ++place)
    for (int columns = 1; columns <= 3; ++columns)
      page.cards[place].sixths[static_cast<std::size_t>(columns - 1)] = sixthsOfCard(kinds, place, columns);
  return page;
}

}  // namespace mivo::host
