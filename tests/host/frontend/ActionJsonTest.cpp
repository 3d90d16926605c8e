// SPDX-License-Identifier: MIT
#include "host/frontend/ActionJson.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "host/json/ReadJson.h"

namespace mivo::host {
namespace {

using App = AppFeature::Action;
using Page = PageAction::Action;
using Sent = StatisticsFeature::Action;

template <class Value>
std::vector<Value> samples();

// The first record is made of the first samples of its fields, the second of their second ones.
template <class Listed>
std::vector<Listed> sampledRecords() {
  std::vector<Listed> records(2);
  for (std::size_t place = 0; place < 2; ++place)
    fields(records[place], [place]<class Field>(std::string_view, Field& field) {
      const auto all = samples<Field>();
      field = all[std::min(place, all.size() - 1)];
    });
  return records;
}

template <class Union, class... Case>
std::vector<Union> sampledCases(JsonCases<Case...>) {
  std::vector<Union> all;
  [[maybe_unused]] const auto add = [&all]<class Named>(std::type_identity<Named>) {
    if constexpr (std::is_empty_v<Named>)
      all.push_back(Named{});
    else if constexpr (hasOneValue<Named>)
      for (auto& value : samples<PayloadOf<Named>>()) all.push_back(Named{std::move(value)});
    else
      for (Named& record : sampledRecords<Named>()) all.push_back(std::move(record));
  };
  (add(std::type_identity<Case>{}), ...);
  return all;
}

template <class Value>
std::vector<Value> samples() {
  if constexpr (isOptional<Value>) {
    std::vector<Value> all{std::nullopt};
    for (auto& value : samples<typename Value::value_type>()) all.push_back(std::move(value));
    return all;
  } else if constexpr (std::same_as<Value, Screen>) {
    const auto all = allScreens();
    return {all.begin(), all.end()};
  } else if constexpr (std::floating_point<Value>) {
    return {0, -81.4, 1e300, 0.1};
  } else if constexpr (std::integral<Value>) {
    std::vector<Value> all{0, 7, std::numeric_limits<std::make_signed_t<Value>>::max()};
    if (std::signed_integral<Value>) all.push_back(std::numeric_limits<Value>::min());
    return all;
  } else if constexpr (std::is_enum_v<Value>) {
    return {Value{0}, Value{1}};
  } else if constexpr (std::same_as<Value, std::string>) {
    return {"", "18 Uhr \"Käse\"\n\\\t\x7F, {\"didGoBack\"}"};
  } else if constexpr (std::same_as<Value, Date>) {
    return {dateSince1970(1782907200.25), firstDate, lastDate};
  } else if constexpr (std::same_as<Value, UUID>) {
    return {UUID{1, 2}};
  } else if constexpr (std::same_as<Value, ScrollChartFeature::VisibleDays>) {
    return {{}, {{dateSince1970(0), 17.5}, {dateSince1970(86400), 58}}};
  } else if constexpr (std::same_as<Value, std::vector<std::string>>) {
    return {{}, {"a.csv", "b.json"}};
  } else if constexpr (Record<Value>) {
    return sampledRecords<Value>();
  } else {
    return sampledCases<Value>(ListedCasesOf<Value>{});
  }
}

template <class Action>
void expectAllComeBack(std::size_t atLeast) {
  const auto all = samples<Action>();
  EXPECT_GE(all.size(), atLeast);
  std::set<std::string> texts;
  for (const Action& action : all) {
    const std::string json = writeAction(action);
    EXPECT_EQ(json.find('\n'), std::string::npos);
    EXPECT_TRUE(texts.insert(json).second) << "written for two: " << json;
    const auto read = readAction(json);
    ASSERT_TRUE(read) << json << '\n' << read.error();
    EXPECT_TRUE(*read == PersonAction{action}) << json << " was read as " << writeAction(*read);
  }
}

TEST(ActionJson, readsWhateverAPersonCanDoAsItWasWritten) {
  expectAllComeBack<App>(150);
  expectAllComeBack<Page>(60);
}

struct ActionRow {
  const char* name;
  std::string json;
  PersonAction action;
};
void PrintTo(const ActionRow& row, std::ostream* out) { *out << row.name; }
class SpelledAction : public testing::TestWithParam<ActionRow> {};

TEST_P(SpelledAction, isWrittenAndReadSo) {
  const auto& [name, json, action] = GetParam();
  EXPECT_EQ(writeAction(action), json);
  const auto read = readAction(json);
  ASSERT_TRUE(read) << read.error();
  EXPECT_TRUE(*read == action);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SpelledAction,
    testing::Values(
        ActionRow{"nameAlone", R"("didGoBack")", App{App::didGoBack{}}},
        ActionRow{"several", R"({"didTapStart": {"start": 1782907200.5, "goalSeconds": 57600}})",
                  App{App::didTapStart{dateSince1970(1782907200.5), 57600}}},
        ActionRow{"screen", R"({"didOpen": "import"})", App{App::didOpen{Screen::importing}}},
        ActionRow{"lastScreen", R"({"didOpen": "appearance"})", App{App::didOpen{Screen::appearance}}},
        ActionRow{"binding", R"({"statistics": {"binding": {"timeRange": "month"}}})",
                  App{App::statistics{Sent::binding{Write<&StatisticsFeature::State::timeRange>{TimeRange::month}}}}},
        ActionRow{"dismissed", R"({"statistics": {"destination": "dismiss"}})",
                  App{App::statistics{
                      Sent::destination{PresentationAction<StatisticsFeature::Destination::Action>::dismiss{}}}}},
        ActionRow{"id", R"({"didDeleteFast": "00000000-0000-0001-0000-000000000002"})",
                  App{App::didDeleteFast{{1, 2}}}},
        ActionRow{"nothing", R"({"weightChart": {"didTouch": null}})",
                  Page{Page::weightChart{LineChartAction::Action::didTouch{std::nullopt}}}},
        ActionRow{"visibleDays", R"({"statistics": {"fastingChartAction": {"didUpdateVisibleDays": [[0, 17.5]]}}})",
                  App{App::statistics{Sent::fastingChartAction{
                      ScrollChartFeature::Action::didUpdateVisibleDays{{{dateSince1970(0), 17.5}}}}}}}),
    [](const auto& row) { return std::string{row.param.name}; });

struct RefusedRow {
  const char* name;
  std::string json, sentence;
};
void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }
class RefusedAction : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedAction, isToldInOneSentenceThatNamesThePlace) {
  const auto read = readAction(GetParam().json);
  ASSERT_FALSE(read) << writeAction(*read);
  EXPECT_THAT(read.error(), testing::StartsWith(GetParam().sentence));
}

constexpr const char* notJson = "not JSON: ";
constexpr const char* tooDeep = "nested deeper than 64 levels";
constexpr const char* noAction = "expected the name of an action, alone or with its value";
constexpr const char* nobodys = ": expected an action that a person can take";

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedAction,
    testing::Values(
        RefusedRow{"nothing", "", notJson}, RefusedRow{"cut", R"({"didOpen": "ba)", notJson},
        RefusedRow{"more", R"("didGoBack" "didGoBack")", notJson},
        RefusedRow{"behindItsEnd", std::string{"\"didGoBack\"\0 1", 14}, notJson},
        RefusedRow{"notUtf8", "{\"didTypeFasts\": \"\xC3\"}", notJson},
        RefusedRow{"tooLarge", std::string(1U << 21, ' '), "expected at most 1048576 bytes of JSON"},
        RefusedRow{"tooDeep", std::string(1U << 19, '[') + std::string(1U << 19, ']'), tooDeep},
        RefusedRow{"tooDeepInside",
                   R"({"didTapStop": )" + std::string(1U << 18, '[') + std::string(1U << 18, ']') + '}', tooDeep},
        RefusedRow{"number", "7", noAction},
        RefusedRow{"twoAtOnce", R"({"didTapStop": 1, "didOpen": "badges"})", noAction},
        RefusedRow{"unknown", R"("didFly")", std::string{"didFly"} + nobodys},
        RefusedRow{"unknownUnspeakable", R"({"a\nb": 1})", std::string{"a\\x0Ab"} + nobodys},
        RefusedRow{"whatATaskFound", R"({"didFail": "x"})", std::string{"didFail"} + nobodys},
        RefusedRow{"whatTheProgramDoes", R"("recompute")", std::string{"recompute"} + nobodys},
        RefusedRow{"whatATaskFoundInside", R"({"statistics": {"didReceiveTipID": "x"}})",
                   std::string{"statistics.didReceiveTipID"} + nobodys},
        RefusedRow{"whatNobodyCanMake", R"({"statistics": {"destination": {"presented": {"roadmap": {}}}}})",
                   std::string{"statistics.destination.presented.roadmap"} + nobodys},
        RefusedRow{"valueOfNone", R"({"didGoBack": {}})", "didGoBack: expected this name alone"},
        RefusedRow{"noValue", R"("didTapStop")", "didTapStop: expected an object with a value of this name"},
        RefusedRow{"missingField", R"({"didTapStart": {"start": 1}})", "didTapStart.goalSeconds: expected this field"},
        RefusedRow{"unknownField", R"({"didTapStart": {"start": 1, "goalSeconds": 1, "note": ""}})",
                   "didTapStart: expected each field of didTapStart once, and no other"},
        RefusedRow{"fieldTwice", R"({"didTapStart": {"start": 1, "goalSeconds": 1, "start": 2}})",
                   "didTapStart: expected each field of didTapStart once, and no other"},
        RefusedRow{"wrongKind", R"({"didTapStart": {"start": "now", "goalSeconds": 57600}})",
                   "didTapStart.start: expected a number"},
        RefusedRow{"fraction", R"({"didChangeGoal": 1.5})",
                   "didChangeGoal: expected a whole number from -9223372036854775808 to 9223372036854775807"},
        RefusedRow{"outOfRange", R"({"dateChoice": {"didTurnHour": 4294967296}})",
                   "dateChoice.didTurnHour: expected a whole number from -2147483648 to 2147483647"},
        RefusedRow{"negativePlace", R"({"didTapFast": -1})",
                   "didTapFast: expected a whole number from 0 to 9223372036854775807"},
        RefusedRow{"notFinite", R"({"didTapStop": 1e999})", notJson},
        RefusedRow{"beyondCalendars", R"({"didTapStop": 1e15})",
                   "didTapStop: expected seconds since 1970 of a date in the years 1 to 9999"},
        RefusedRow{"enumerator", R"({"statistics": {"binding": {"timeRange": "decade"}}})",
                   R"(statistics.binding.timeRange: expected one of "week", "month", "year")"},
        RefusedRow{"screen", R"({"didOpen": "importing"})", "didOpen: expected the name of a screen"},
        RefusedRow{"id", R"({"didDeleteFast": "7"})", "didDeleteFast: expected a UUID"},
        RefusedRow{"element", R"({"didChooseFiles": ["a", 2]})", "didChooseFiles[1]: expected a text"},
        RefusedRow{"pair", R"({"statistics": {"eatingChartAction": {"didUpdateVisibleDays": [[0, 1], [2, "x"]]}}})",
                   "statistics.eatingChartAction.didUpdateVisibleDays[1][1]: expected a number"}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::host
