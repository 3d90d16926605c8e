// SPDX-License-Identifier: MIT
#include "host/pages/SettingsPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include "host/json/RecordJson.h"
#include "host/pages/AboutPage.h"
#include "tests/pages/Pages.h"

namespace mivo::host {
namespace {

using testing::ElementsAre;
using tests::utc;

/// "d3": the third day of the week, Sunday first.
struct Weekdays final : DateFormatter {
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    const std::chrono::weekday day{std::chrono::floor<std::chrono::days>(date)};
    return std::string{skeleton == "EEEE" ? "d" : "?"} + std::to_string(day.c_encoding() + 1);
  }
};

SettingsPage page(const SettingsFacts& facts) {
  const tests::Pages pages;
  const Weekdays weekdays;
  const PageClients all = pages.at(utc("2026-03-01 12:00"));
  return composeSettings(facts, {.now = all.now,
                                 .calendar = all.calendar,
                                 .texts = all.texts,
                                 .dates = weekdays,
                                 .hourMin = all.hourMin,
                                 .hour = all.hour,
                                 .numbers = all.numbers,
                                 .masses = all.masses});
}

struct ChoiceRow {
  const char* name;
  SettingsFacts facts;
  Choice SettingsPage::* choice;
  std::int64_t chosen;
  std::string value;
};
void PrintTo(const ChoiceRow& row, std::ostream* out) { *out << row.name; }
class SettingsChoices : public testing::TestWithParam<ChoiceRow> {};

TEST_P(SettingsChoices, tellWhatIsChosenAndWhatIsInForce) {
  const Choice choice = page(GetParam().facts).*GetParam().choice;
  EXPECT_EQ(choice.chosen, GetParam().chosen);
  EXPECT_EQ(choice.value, GetParam().value);
}

SettingsFacts inLanguage(const std::string& tag) { return {.language = tag}; }
SettingsFacts looking(AppearanceMode mode) { return {.appearance = {.mode = mode}}; }

INSTANTIATE_TEST_SUITE_P(
    Rows, SettingsChoices,
    testing::Values(ChoiceRow{"kilograms", {}, &SettingsPage::weightUnit, 0, "kg"},
                    ChoiceRow{"stones", {.weightUnit = WeightUnit::stones}, &SettingsPage::weightUnit, 2, "st"},
                    ChoiceRow{"usualWeekday", {.usualWeekday = 7}, &SettingsPage::firstWeekday, 0, "d7"},
                    ChoiceRow{"monday", {.chosenWeekday = 2, .usualWeekday = 7}, &SettingsPage::firstWeekday, 1, "d2"},
                    ChoiceRow{"saturday", {.chosenWeekday = 7}, &SettingsPage::firstWeekday, 6, "d7"},
                    ChoiceRow{"sunday", {.chosenWeekday = 1}, &SettingsPage::firstWeekday, 7, "d1"},
                    ChoiceRow{"systemLanguage", inLanguage(""), &SettingsPage::language, 0, "System"},
                    ChoiceRow{"spanish", inLanguage("es"), &SettingsPage::language, 3, "Español"},
                    ChoiceRow{"languageNobodyOffers", inLanguage("xx"), &SettingsPage::language, 0, "System"},
                    ChoiceRow{"systemLook", {}, &SettingsPage::appearance, 0, "System"},
                    ChoiceRow{"dark", looking(AppearanceMode::dark), &SettingsPage::appearance, 2, "Dark"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(SettingsPage, givesEachPlaceBackAsItsChoice) {
  const SettingsPage shown = page({});
  EXPECT_THAT(shown.firstWeekday.options, ElementsAre("System (d2)", "d2", "d3", "d4", "d5", "d6", "d7", "d1"));
  for (std::int64_t place = 0; place < std::ssize(shown.firstWeekday.options); ++place)
    EXPECT_EQ(page({.chosenWeekday = weekdayAt(place)}).firstWeekday.chosen, place);
  for (std::int64_t place = 0; place < std::ssize(shown.language.options); ++place)
    EXPECT_EQ(page(inLanguage(languageAt(place))).language.chosen, place);
  for (std::int64_t place = 0; place < std::ssize(shown.weightUnit.options); ++place)
    EXPECT_EQ(page({.weightUnit = weightUnitAt(place)}).weightUnit.chosen, place);
  for (std::int64_t place = 0; place < std::ssize(shown.appearance.options); ++place)
    EXPECT_EQ(page(looking(appearanceModeAt(place))).appearance.chosen, place);
}

TEST(SettingsPage, tellsNumbersInWords) {
  const tests::Pages pages;
  const PageClients clients = pages.at(utc("2026-03-01 12:00"));
  const SettingsPage shown = page({.goalSeconds = 59400, .appearance = {.textScale = 1.15}});
  EXPECT_EQ(shown.goal, "16h 30m");
  EXPECT_EQ(shown.textSize, (Steps{"Text size", 115, 85, 200, 5}));
  EXPECT_EQ(percentText(shown.textSize.value, clients), "115%");
  EXPECT_EQ(hoursText(24, clients), "24h");
}

TEST(SettingsPage, printsAsJson) {
  JsonWriter json;
  writeJson(json, page({.weightUnit = WeightUnit::pounds, .version = "0.1.0"}));
  const std::string text = std::move(json).text();
  EXPECT_THAT(text, testing::HasSubstr(R"("title": "Weight unit")"));
  EXPECT_THAT(text, testing::HasSubstr(R"("value": "lb")"));
  EXPECT_THAT(text, testing::HasSubstr(R"("version": "0.1.0")"));
}

TEST(AboutPage, namesWhatItIsBuiltOn) {
  const AboutPage shown = composeAbout({"0.1.0", "/home/a/mivo.sqlite", "mivo export --to FILE"}, {{"Paint 1", "MIT"}},
                                       tests::EnglishTexts{});
  EXPECT_THAT(shown.facts,
              ElementsAre(Fact{"Version", "0.1.0"}, Fact{"Licence", "MIT"}, Fact{"Database", "/home/a/mivo.sqlite"},
                          Fact{"Copy of everything", "mivo export --to FILE"}));
  EXPECT_EQ(shown.libraries.front(), (Fact{"Paint 1", "MIT"}));
  EXPECT_THAT(shown.libraries, testing::Contains(Fact{"SQLite", "Public domain"}));
  EXPECT_THAT(composeAbout({"0.1.0", "mivo.sqlite", ""}, {}, tests::EnglishTexts{}).facts, testing::SizeIs(3))
      << "a page has no commands";
}

}  // namespace
}  // namespace mivo::host
