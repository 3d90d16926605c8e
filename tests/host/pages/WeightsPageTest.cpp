// SPDX-License-Identifier: MIT
#include "host/pages/WeightsPage.h"

#include <gtest/gtest.h>

#include "host/json/RecordJson.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using tests::utc;

const Date now = utc("2026-03-01 12:00");
const BodyWeightSample sunday{{0, 1}, utc("2025-12-28 07:04"), 72.4}, monday{{0, 2}, utc("2026-02-23 06:50"), 71.9},
    tuesday{{0, 3}, utc("2026-02-24 20:15"), 71.5}, rightTuesday{{0, 3}, utc("2026-02-24 20:15"), 70.5};

List<BodyWeightSample> listOf(std::vector<BodyWeightSample> weights) { return {std::move(weights)}; }

TEST(WeightsPage, listsTheLatestFirstInTheUsersUnit) {
  const auto weights = listOf({sunday, monday});
  const tests::Pages pages;
  ASSERT_EQ(*weightOf(weights, 0), monday);
  ASSERT_EQ(*weightOf(weights, 1), sunday);
  EXPECT_EQ(weightOf(weights, 2), nullptr);
  EXPECT_EQ(composeWeightRow(monday, WeightUnit::kilograms, pages.at(now)).spoken,
            "02-23, 06:50, " + pages.at(now).masses.string(71.9, WeightUnit::kilograms));
  EXPECT_EQ(weightsSpoken(weights, 1, WeightUnit::stones, pages.at(now)),
            "Weights, 2025-12-28, 07:04, " + pages.at(now).masses.string(72.4, WeightUnit::stones));
  EXPECT_EQ(weightsSpoken(weights, 2, WeightUnit::stones, pages.at(now)), "Weights");
}

TEST(WeightsPage, isLedToWhereThereAreWeights) {
  const tests::Pages pages;
  EXPECT_EQ(composeWeightsPage(listOf({}), pages.at(now).texts).openLabel, "");
  const WeightsPage page = composeWeightsPage(listOf({sunday, monday}), pages.at(now).texts);
  EXPECT_EQ(page.openLabel, "All weights");
  JsonWriter json;
  writeJson(json, page);
  EXPECT_NE(std::move(json).text().find(R"("count": 2)"), std::string::npos);
}

struct ChangeRow {
  const char* name;
  std::vector<BodyWeightSample> before, after;
  RowChange change;
};
void PrintTo(const ChangeRow& row, std::ostream* out) { *out << row.name; }

class WeightChanges : public testing::TestWithParam<ChangeRow> {};

TEST_P(WeightChanges, touchOnlyTheRowsThatDiffer) {
  EXPECT_EQ(rowChange(listOf(GetParam().before), listOf(GetParam().after)), GetParam().change);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WeightChanges,
    testing::Values(ChangeRow{"latestAdded", {sunday, monday}, {sunday, monday, tuesday}, {0, 0, 1}},
                    ChangeRow{"middleGone", {sunday, monday, tuesday}, {sunday, tuesday}, {1, 1, 0}},
                    ChangeRow{"edited", {sunday, monday, tuesday}, {sunday, monday, rightTuesday}, {0, 1, 1}},
                    ChangeRow{"lastGone", {sunday}, {}, {0, 1, 0}}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
