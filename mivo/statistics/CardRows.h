// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>

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

}  // namespace mivo
