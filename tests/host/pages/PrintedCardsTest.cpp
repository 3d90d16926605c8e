// SPDX-License-Identifier: MIT
#include "host/pages/PrintedCards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mivo::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum CardKind;

std::vector<CardKind> printed(const std::vector<CardKind>& kinds, PrintedWeights weights) {
  std::vector<Card> cards;
  for (const CardKind kind : kinds) cards.push_back({kind, NoticeCard{}});
  std::vector<CardKind> left;
  for (const Card& card : printedCards(cards, weights)) left.push_back(card.kind);
  return left;
}

TEST(PrintedCards, areFiguresAndWeightsOnlyWhereAskedFor) {
  std::vector<CardKind> all;
  for (int kind = 0; kind <= static_cast<int>(trend); ++kind) all.push_back(static_cast<CardKind>(kind));
  EXPECT_THAT(printed(all, PrintedWeights::hidden),
              ElementsAre(summary, badges, timeRange, fastingChart, eatingChart, trend));
  EXPECT_THAT(printed(all, PrintedWeights::shown), ElementsAre(summary, goalWeight, badges, timeRange, fastingChart,
                                                               eatingChart, weightChart, weightFastingChart, trend));
  EXPECT_THAT(printed({start, addWeight, timeRange, weightChart}, PrintedWeights::hidden), IsEmpty());
}

}  // namespace
}  // namespace mivo::host
