// SPDX-License-Identifier: MIT
#include "host/pages/PrintedCards.h"

#include <algorithm>

namespace mivo::host {
namespace {

bool isPrinted(CardKind kind, PrintedWeights weights) {
  switch (kind) {
    case CardKind::summary:
    case CardKind::badges:
    case CardKind::timeRange:
    case CardKind::fastingChart:
    case CardKind::eatingChart:
    case CardKind::trend:
      return true;
    case CardKind::goalWeight:
    case CardKind::weightChart:
    case CardKind::weightFastingChart:
      return weights == PrintedWeights::shown;
    case CardKind::tip:
    case CardKind::start:
    case CardKind::configure:
    case CardKind::overlappingFasts:
    case CardKind::donation:
    case CardKind::roadmap:
    case CardKind::healthData:
    case CardKind::addWeight:
      return false;
  }
  return false;
}

}  // namespace

std::vector<Card> printedCards(std::vector<Card> cards, PrintedWeights weights) {
  std::erase_if(cards, [weights](const Card& card) { return !isPrinted(card.kind, weights); });
  if (!cards.empty() && cards.back().kind == CardKind::timeRange) cards.pop_back();
  return cards;
}

}  // namespace mivo::host
