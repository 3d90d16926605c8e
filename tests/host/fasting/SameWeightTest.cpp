// SPDX-License-Identifier: MIT
#include "host/fasting/SameWeight.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace mivo::host {
namespace {

/// "814" for 81.4 in a unit.
struct Tenths : MassFormatter {
  std::string string(double weightInKg, WeightUnit unit) const override {
    return std::to_string(std::lround(weightInKg / kilogramsPer(unit) * 10));
  }
};

Date at(double seconds) { return dateSince1970(1772366400 + seconds); }

struct SameWeightRow {
  const char* name;
  double seconds, weightInKg;
  WeightUnit unit;
  int expected;  // which of the weights; -1 for none
};

void PrintTo(const SameWeightRow& row, std::ostream* out) { *out << row.name; }

class SameWeight : public testing::TestWithParam<SameWeightRow> {};

TEST_P(SameWeight, isOfTheSameMinuteAndShownAlike) {
  const std::vector<BodyWeightSample> weights{
      {UUID{0, 1}, at(-1), 81.4}, {UUID{0, 2}, at(0), 80}, {UUID{0, 3}, at(30), 81.4}, {UUID{0, 4}, at(60), 82}};
  const auto& [name, seconds, weightInKg, unit, expected] = GetParam();
  const auto* same = sameWeight(weights, {UUID{0, 9}, at(seconds), weightInKg}, unit, Tenths{});
  EXPECT_EQ(same ? same - weights.data() : -1, expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, SameWeight,
                         testing::Values(SameWeightRow{"sameMinute", 59, 81.4, WeightUnit::kilograms, 2},
                                         SameWeightRow{"firstOfItsMinute", 59, 80, WeightUnit::kilograms, 1},
                                         SameWeightRow{"minuteBefore", -60, 81.4, WeightUnit::kilograms, 0},
                                         SameWeightRow{"anotherMinute", 61, 81.4, WeightUnit::kilograms, -1},
                                         SameWeightRow{"shownAlike", 10, 81.41, WeightUnit::kilograms, 2},
                                         SameWeightRow{"shownOtherwise", 10, 81.46, WeightUnit::kilograms, -1},
                                         SameWeightRow{"shownAlikeInStones", 10, 81.46, WeightUnit::stones, 2}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
