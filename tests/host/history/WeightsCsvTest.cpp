// SPDX-License-Identifier: MIT
#include "host/history/WeightsCsv.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <ostream>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/dates/DateText.h"
#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

std::string shortest(double number) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

/// "date weight; ...", or the fault.
std::string outcome(std::string_view text, std::optional<WeightUnit> unit) {
  const tests::CountingUUIDs ids;
  const auto samples = readWeightsCsv(text, "weights.csv", *adapters::loadTimeZone("Europe/Berlin").value(), unit, ids);
  if (!samples) return describe(samples.error());
  std::string result;
  for (const auto& sample : *samples)
    result += (result.empty() ? "" : "; ") + rfc3339(sample.date) + ' ' + shortest(sample.weightInKg);
  return result;
}

struct Row {
  const char* name;
  std::string_view text, expected;
  std::optional<WeightUnit> unit = {};
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class WeightsCsv : public testing::TestWithParam<Row> {};

TEST_P(WeightsCsv, givesWeightsOrTheFirstFault) {
  EXPECT_EQ(outcome(GetParam().text, GetParam().unit), GetParam().expected);
}

constexpr std::string_view halfStone = "2026-03-01T07:00:00Z 3.17514659";

INSTANTIATE_TEST_SUITE_P(
    Accepted, WeightsCsv,
    testing::Values(
        Row{"ownForm", "date,weight_kg\n2026-03-01T07:00:00Z,81.4\n", "2026-03-01T07:00:00Z 81.4"},
        Row{"sortedByDate", "date,weight_kg\n2026-03-02,82\n2026-03-01,81\n2026-03-02,83\n",
            "2026-02-28T23:00:00Z 81; 2026-03-01T23:00:00Z 82; 2026-03-01T23:00:00Z 83"},
        Row{"poundsByHeader", "time,Weight (lb)\n2026-03-01T07:00Z,7\n", halfStone},
        Row{"stonesByHeader", "Weight (st);log date\n0,5;2026-03-01T07:00Z\n", halfStone},
        Row{"unitInTheCell", "date,weight\n2026-03-01T07:00Z,7 lbs\n2026-03-01T08:00Z,81.4kg\n",
            "2026-03-01T07:00:00Z 3.17514659; 2026-03-01T08:00:00Z 81.4"},
        Row{"cellBeatsHeader", "date,weight_kg\n2026-03-01T07:00Z,7 lb\n", halfStone},
        Row{"stonesAndPounds", "date,weight\n2026-03-01T07:00Z,0 st 7 lb\n", halfStone},
        Row{"quotedDecimalComma", "date,weight_kg\n2026-03-01T07:00Z,\"81,4\"\n", "2026-03-01T07:00:00Z 81.4"},
        Row{"heavierThanMayBeTyped", "date,weight_kg\n2026-03-01T07:00Z,1000\n", "2026-03-01T07:00:00Z 1000"},
        Row{"unitAsTold", "date,value\n2026-03-01T07:00Z,7\n", halfStone, WeightUnit::pounds},
        Row{"headerBeatsWhatWasTold", "date,kg\n2026-03-01T07:00Z,81.4\n", "2026-03-01T07:00:00Z 81.4",
            WeightUnit::pounds},
        Row{"notWeighed", "date,weight_kg\n2026-03-01,\n2026-03-02,NA\n2026-03-03,--\n2026-03-04,null\n", ""}),
    [](const auto& row) { return std::string{row.param.name}; });

INSTANTIATE_TEST_SUITE_P(
    Refused, WeightsCsv,
    testing::Values(
        Row{"empty", "\n\n",
            "weights.csv: expected a header with the columns \"date\" and \"weight_kg\", found an empty file"},
        Row{"noWeightColumn", "date,fat\n",
            "weights.csv:1: header: expected the columns \"date\" and \"weight_kg\", found \"date,fat\""},
        Row{"noUnit", "date,weight\n2026-03-01,81.4\n",
            "weights.csv:2: weight: expected a unit in the header or the cell: kg, lb or st, found \"81.4\""},
        Row{"noNumber", "date,weight_kg\n2026-03-01,7Z.5\n",
            "weights.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"7Z.5\""},
        Row{"zero", "date,weight_kg\n2026-03-01,0\n",
            "weights.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"0\""},
        Row{"negative", "date,weight_kg\n2026-03-01,-81\n",
            "weights.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"-81\""},
        Row{"infinite", "date,weight_kg\n2026-03-01,inf\n",
            "weights.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"inf\""},
        Row{"grams", "date,weight_kg\n2026-03-01,81400\n",
            "weights.csv:2: weight_kg: expected kilograms above 0 and at most 1000, found \"81400\""},
        Row{"badDate", "date,weight_kg\n2026-02-30,81\n",
            "weights.csv:2: date: expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z, found "
            "\"2026-02-30\""}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
