// SPDX-License-Identifier: MIT
#include "mivo/statistics/AddWeightForm.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "tests/pages/Pages.h"

namespace mivo {
namespace {

using State = AddWeightLogFeature::State;
using Saving = AddWeightLogFeature::SavingState;
using Problem = AddWeightLogFeature::Problem;
using tests::utc;

const std::string now = "2026-03-01 00:10";

State weighed(const char* date) {
  State state{.logDate = utc(date)};
  state.weightInKg = 81.4;
  return state;
}

template <auto field, class Value>
State with(Value value, State state = weighed("2026-03-01 00:05")) {
  state.*field = value;
  return state;
}

AddWeightForm form(const std::string& dateText, const char* date) {
  return {.fieldText = "81.4",
          .unit = "kg",
          .dateText = dateText,
          .dateTitle = "Date and time",
          .date = utc(date),
          .problem = ""};
}

AddWeightForm formWith(const std::string& field, const std::string& unit, const std::string& problem,
                       bool isSaving = false) {
  AddWeightForm expected = form("Today, 00:05", "2026-03-01 00:05");
  expected.fieldText = field;
  expected.unit = unit;
  expected.problem = problem;
  expected.isSaving = isSaving;
  return expected;
}

struct FormRow {
  const char* name;
  State (*state)();
  AddWeightForm expected;
};
void PrintTo(const FormRow& row, std::ostream* out) { *out << row.name; }
class AddWeightForms : public testing::TestWithParam<FormRow> {};

TEST_P(AddWeightForms, sayWhatStandsThere) {
  const tests::Pages pages;
  EXPECT_EQ(composeAddWeight(GetParam().state(), pages.at(utc(now))), GetParam().expected);
}

State failed() {
  State state = with<&State::savingState>(Saving::failed);
  state.failure = std::string{"The disk is full."};
  return state;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AddWeightForms,
    testing::Values(
        FormRow{"today", [] { return weighed("2026-03-01 00:05"); }, form("Today, 00:05", "2026-03-01 00:05")},
        FormRow{"yesterday", [] { return weighed("2026-02-28 23:55"); }, form("Yesterday, 23:55", "2026-02-28 23:55")},
        FormRow{"before", [] { return weighed("2026-02-27 07:00"); }, form("02-27 07:00", "2026-02-27 07:00")},
        FormRow{"inPounds", [] { return with<&State::weightUnit>(WeightUnit::pounds); }, formWith("179.5", "lb", "")},
        FormRow{"inStones", [] { return with<&State::weightUnit>(WeightUnit::stones); }, formWith("81.4 kg", "", "")},
        FormRow{"typed", [] { return with<&State::typedText>(std::optional<std::string>{"8"}); },
                formWith("8", "kg", "")},
        FormRow{"noWeight", [] { return with<&State::problem>(std::optional{Problem::notAWeight}); },
                formWith("81.4", "kg", "Type up to 700 kg or 1543 lb, such as 81.4.")},
        FormRow{"future", [] { return with<&State::problem>(std::optional{Problem::dateInFuture}); },
                formWith("81.4", "kg", "This date has not come yet.")},
        FormRow{"saving", [] { return with<&State::savingState>(Saving::saving); }, formWith("81.4", "kg", "", true)},
        FormRow{"failed", failed, formWith("81.4", "kg", "The disk is full.")}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo
