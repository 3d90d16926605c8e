// SPDX-License-Identifier: MIT
#include "mivo/weights/WeightText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

constexpr double pound = 0.45359237;
constexpr double refused = -1;

struct WeightRow {
  const char* name;
  const char* text;
  WeightUnit unit;
  double kilograms;
};
void PrintTo(const WeightRow& row, std::ostream* out) { *out << row.name; }
class TypedWeight : public testing::TestWithParam<WeightRow> {};

TEST_P(TypedWeight, isReadInKilograms) {
  const auto weight = parseTypedWeight(GetParam().text, GetParam().unit);
  if (GetParam().kilograms == refused)
    EXPECT_FALSE(weight);
  else
    EXPECT_DOUBLE_EQ(weight.value_or(refused), GetParam().kilograms);
}

constexpr auto kg = WeightUnit::kilograms;
constexpr auto lb = WeightUnit::pounds;
constexpr auto st = WeightUnit::stones;

INSTANTIATE_TEST_SUITE_P(
    Rows, TypedWeight,
    testing::Values(
        WeightRow{"dot", "81.4", kg, 81.4}, WeightRow{"comma", " 81,4 ", kg, 81.4},
        WeightRow{"unitOfTheUser", "179.5", lb, 179.5 * pound}, WeightRow{"unitInTheText", "179 LB", kg, 179 * pound},
        WeightRow{"kilogramsInTheText", "81kg", lb, 81}, WeightRow{"stonesAndPounds", "12 st 11 lb", kg, 179 * pound},
        WeightRow{"stonesAndPoundsByPosition", "12 11", st, 179 * pound},
        WeightRow{"stonesAlone", "12.5", st, 175 * pound},
        WeightRow{"arabicDigits", "\u0668\u0661\u066B\u0664", kg, 81.4},
        WeightRow{"thaiDigits", "\u0E58\u0E51.\u0E54", kg, 81.4}, WeightRow{"wideDigits", "\uFF18\uFF11", kg, 81},
        WeightRow{"noPounds", "12 st 0 lb", kg, 168 * pound}, WeightRow{"noBreakSpace", "81\u00A0kg", kg, 81},
        WeightRow{"empty", "", kg, refused}, WeightRow{"blank", "  ", kg, refused},
        WeightRow{"word", "heavy", kg, refused}, WeightRow{"zero", "0", kg, refused},
        WeightRow{"negative", "-81", kg, refused}, WeightRow{"rest", "81.4 or so", kg, refused},
        WeightRow{"twoNumbers", "81 4", kg, refused}, WeightRow{"tooManyPounds", "12 st 14 lb", st, refused},
        WeightRow{"twoSigns", "1.081,4", kg, refused}, WeightRow{"twoSignsInStones", "12.5.4", st, refused},
        WeightRow{"noDigitBetween", "12..4", st, refused}, WeightRow{"blanksAlone", "12.5  ", st, 175 * pound},
        WeightRow{"heaviest", "700", kg, 700}, WeightRow{"heavier", "700.1", kg, refused},
        WeightRow{"heavierInPounds", "1543.3", lb, refused}, WeightRow{"infinite", "inf", kg, refused},
        WeightRow{"brokenText", "81\xE2", kg, refused}, WeightRow{"negativePounds", "12 st -0 lb", st, refused}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(TypedWeight, isRefusedWithTheLimitInBothUnits) {
  EXPECT_EQ(refusedWeightText(tests::EnglishTexts{}), "Type up to 700 kg or 1543 lb, such as 81.4.");
}

TEST(WrittenWeight, isReadWithoutALimitAndSaysWhatIsMissing) {
  using enum WeightTextFault;
  using Read = std::variant<double, WeightTextFault>;
  EXPECT_EQ(readWeight("81400", kg), Read{81400.0}) << "a table may be in grams, which its reader refuses";
  EXPECT_EQ(readWeight("8.14e1", kg), Read{81.4}) << "as spreadsheets write it";
  EXPECT_EQ(readWeight("81.4", {}), Read{noUnit});
  EXPECT_EQ(readWeight("81.4 kgs", {}), Read{81.4});
  EXPECT_EQ(readWeight("heavy", {}), Read{noNumber});
  EXPECT_EQ(readWeight("12 11", {}), Read{noNumber}) << "stones nobody spoke of";
}

TEST(WeightUnits, areKnownByEachOfTheirNames) {
  for (const auto& [sign, unit] : {std::pair{"kg", kg}, std::pair{"lb", lb}, std::pair{"st", st}}) {
    EXPECT_EQ(weightUnitSign(unit), sign);
    EXPECT_EQ(weightUnitNamed(sign), unit);
    EXPECT_EQ(weightUnitAtEnd(std::string{"weight"} + sign), unit);
  }
  EXPECT_EQ(weightUnitNamed("stones"), st);
  EXPECT_EQ(weightUnitNamed("k"), std::nullopt);
  EXPECT_EQ(weightUnitAtEnd("weight"), std::nullopt);
  std::string_view text = "stones and more";
  EXPECT_EQ(takeWeightUnit(text), st);
  EXPECT_EQ(text, " and more") << "the longest name";
}

}  // namespace
}  // namespace mivo
