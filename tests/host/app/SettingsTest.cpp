// SPDX-License-Identifier: MIT
#include "host/app/Settings.h"

#include <gtest/gtest.h>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

TEST(Settings, giveAnyWeekdayBackAndNothingElse) {
  const tests::MemoryDefaults defaults;
  EXPECT_EQ(firstWeekday(defaults), std::nullopt);
  for (int weekday = 1; weekday <= 7; ++weekday) {
    setFirstWeekday(defaults, weekday);
    EXPECT_EQ(firstWeekday(defaults), weekday);
  }
  for (const std::optional<int> none : {std::optional{0}, std::optional{8}, std::optional<int>{}}) {
    setFirstWeekday(defaults, none);
    EXPECT_EQ(firstWeekday(defaults), std::nullopt) << none.value_or(-1);
  }
}

TEST(Settings, keepTheUnitOfWeights) {
  const tests::MemoryDefaults defaults;
  EXPECT_EQ(weightUnit(defaults), std::nullopt);
  for (const WeightUnit unit : {WeightUnit::kilograms, WeightUnit::pounds, WeightUnit::stones}) {
    setWeightUnit(defaults, unit);
    EXPECT_EQ(weightUnit(defaults), unit);
  }
  EXPECT_EQ(defaults.text("weightUnit", ""), "st") << "what older versions wrote";
}

TEST(Settings, keepHowTheScreensLook) {
  const tests::MemoryDefaults defaults;
  EXPECT_EQ(appearance(defaults), Appearance{});
  setAppearanceMode(defaults, AppearanceMode::dark);
  setTextScale(defaults, 1.15);
  setReducedMotion(defaults, true);
  EXPECT_EQ(appearance(defaults), (Appearance{AppearanceMode::dark, 1.15, true}));
  EXPECT_EQ(defaults.text("appearance", ""), "dark") << "what older versions wrote";
  for (const auto& [written, read] : {std::pair{0.1, 0.85}, std::pair{9.0, 2.0}}) {
    setTextScale(defaults, written);
    EXPECT_EQ(appearance(defaults).textScale, read);
  }
}

struct OpeningRow {
  const char* name;
  std::string asked;
  bool isFasting;
  std::string last, expected;
};

TEST(Settings, openTheAppWhereItIsWanted) {
  const OpeningRow rows[] = {{"firstTime", "", false, "", "statistics"},
                             {"asItWas", "", false, "settings", "settings"},
                             {"theRunningFast", "", true, "settings", "fasting"},
                             {"asAskedFor", "statistics", true, "settings", "statistics"},
                             {"ofAnotherVersion", "", false, "journal", "statistics"}};
  for (const OpeningRow& row : rows)
    EXPECT_EQ(openingTab(row.asked, row.isFasting, row.last), row.expected) << row.name;
}

}  // namespace
}  // namespace mivo::host
