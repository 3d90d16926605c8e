// SPDX-License-Identifier: MIT
#include "mivo/statistics/CardRows.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace mivo {
namespace {

using enum CardKind;

struct RowsRow {
  const char* name;
  std::vector<CardKind> kinds;
  int columns;
  std::vector<int> sixths;
};
void PrintTo(const RowsRow& row, std::ostream* out) { *out << row.name; }
class CardRows : public testing::TestWithParam<RowsRow> {};

TEST_P(CardRows, areSharedByCardsOfAGroup) {
  std::vector<int> sixths;
  for (std::size_t place = 0; place < GetParam().kinds.size(); ++place)
    sixths.push_back(sixthsOfCard(GetParam().kinds, place, GetParam().columns));
  EXPECT_EQ(sixths, GetParam().sixths);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CardRows,
    testing::Values(RowsRow{"onePhoneColumn", {summary, donation, roadmap, addWeight, goalWeight}, 1, {6, 6, 6, 6, 6}},
                    RowsRow{"twoTiles", {summary, donation, roadmap}, 2, {6, 3, 3}},
                    RowsRow{"oneTile", {donation, timeRange}, 3, {6, 6}},
                    RowsRow{"threeInThreeColumns", {addWeight, goalWeight, badges}, 3, {2, 2, 2}},
                    RowsRow{"theThirdIsLeftOver", {addWeight, goalWeight, badges}, 2, {3, 3, 6}},
                    RowsRow{"twoInThreeColumns", {addWeight, badges, timeRange}, 3, {3, 3, 6}},
                    RowsRow{"charts", {fastingChart, eatingChart, weightChart, weightFastingChart}, 2, {3, 3, 3, 3}},
                    RowsRow{"groupsApart", {eatingChart, weightChart, trend}, 3, {6, 6, 6}}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(CardRows, areWholeOutsideTheScreen) {
  const std::vector<CardKind> kinds{donation, roadmap};
  EXPECT_EQ(sixthsOfCard(kinds, 2, 2), sixthsOfARow);
}

TEST(TrendsCard, takesTheTrendsTogether) {
  TrendCard catabolic, anabolic;
  catabolic.section = "Trends";
  catabolic.name = "Catabolic";
  anabolic.name = "Anabolic";
  EXPECT_EQ(trendsCard(std::vector<Card>{{badges, BadgesCard{}}}), std::nullopt);
  EXPECT_EQ(trendsCard(std::vector<Card>{{badges, BadgesCard{}}, {trend, catabolic}, {trend, anabolic}}),
            (TrendsCard{"Trends", {catabolic, anabolic}}));
}

}  // namespace
}  // namespace mivo
