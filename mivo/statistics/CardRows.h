// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "mivo/statistics/Cards.h"

namespace mivo {

/// A row of cards is divided into six.
inline constexpr int sixthsOfARow = 6;

/// How many sixths the card at a place takes where so many columns of cards fit beside each other: two charts of a
/// kind, or what is about weight and badges, share rows; every other card has a row of its own, and so has one that
/// would be left over.
///
/// kinds  from top to bottom; cards of a group follow each other. A place outside is a whole row.
int sixthsOfCard(std::span<const CardKind> kinds, std::size_t place, int columns);

/// All trends in one card.
struct TrendsCard {
  std::string title;
  std::vector<TrendCard> rows;
  bool operator==(const TrendsCard&) const = default;
};

template <RecordOf<TrendsCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, rows] = record;
  visit("title", title);
  visit("rows", rows);
}

/// The trends of a screen; nothing where it has none.
std::optional<TrendsCard> trendsCard(std::span<const Card> cards);

}  // namespace mivo
