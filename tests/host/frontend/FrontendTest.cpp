// SPDX-License-Identifier: MIT
#include "host/frontend/Frontend.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "adapters/icu/Calendars.h"
#include "adapters/icu/LanguageWords.h"
#include "adapters/json/NlohmannDecoder.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/database/DatabaseHistory.h"
#include "host/disk/DatabaseFile.h"
#include "host/files/FilesOnDisk.h"
#include "host/frontend/Pages.h"
#include "tests/pages/Pages.h"
#include "tests/statistics/StatisticsWorld.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

/// "02-25..03-04"
struct PlainIntervals final : DateIntervalFormatter {
  std::optional<std::string> string(DateInterval interval) const override {
    return tests::text(interval.start).substr(5, 5) + ".." + tests::text(interval.end).substr(5, 5);
  }
};

/// Serves a roadmap of one feature.
struct RoadmapServer final : URLSession {
  void data(std::string_view, StopToken, Completion<std::string> completion) const override {
    completion(std::string{R"([{"id": 1, "title": "Widgets", "status": "planned"}])"});
  }
};

struct CountingNumbers : RandomNumberGenerator {
  std::uint64_t next() const override { return ++last; }
  mutable std::uint64_t last = 0;
};

/// A front-end on a real database, with tasks, queue and clock driven by hand: noon of 1 July 2026.
class FrontendTest : public tests::StatisticsTest {
 protected:
  FrontendTest() {
    auto& clients = world.dependencies;
    clients.calendar = calendar;
    clients.currentCalendar = calendar;
    clients.date = world.clock;
    clients.mainQueue = world.queue;
    clients.taskRunner = world.tasks;
    clients.dateFormatter = std::make_shared<tests::NumericDates>();
    clients.dateIntervalFormatter = std::make_shared<PlainIntervals>();
    clients.urlSession = std::make_shared<RoadmapServer>();
    clients.jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
    clients.random = std::make_shared<CountingNumbers>();
    clients.servers.roadmap = "https://mivo.example";
    clients.tips = shippedOnes;
    scope.reset();  // no dependencies are in force where the front-end is called from
  }

  /// Made last, once a test has put records on disk.
  Frontend& app() {
    if (frontend) return *frontend;
    frontend = std::make_unique<Frontend>(
        FrontendServices{.dependencies = std::make_shared<const Dependencies>(world.dependencies),
                         .history = std::make_shared<DatabaseHistory>(openDatabase(file)),
                         .files = files,
                         .tips = shippedOnes,
                         .calendar = calendar,
                         .feedbackAddress = "ideas@mivo.example",
                         .about = {.version = "1.2.3", .databaseFile = file.string(), .exportCommand = "mivo export"}});
    told = frontend->subscribe([this](std::span<const std::string_view> names) {
      lastTold.insert(lastTold.end(), names.begin(), names.end());
    });
    return *frontend;
  }

  /// Sends an action and lets its tasks end; what was told of until then.
  std::vector<std::string> send(std::string_view json) {
    lastTold.clear();
    const auto done = app().send(json);
    EXPECT_TRUE(done) << done.error();
    settle();
    return lastTold;
  }

  std::string refusal(std::string_view json) {
    const auto done = app().send(json);
    return done ? "" : done.error();
  }

  void settle() {
    do {
      world.tasks->runAll();
      world.queue->runAll();
    } while (world.tasks->count() > 0);
  }

  void pass(double seconds) { world.clock->date = world.clock->date + Duration{seconds}; }

  /// A value of a page, as JSON: at("fasting", "/isRunning").
  std::string at(std::string_view page, const char* pointer) { return valueAt(app().page(page).value(), pointer); }
  std::string rowsAt(std::string_view list, std::size_t first, std::size_t count, const char* pointer) {
    return valueAt(app().rows(list, first, count).value(), pointer);
  }

  static std::string valueAt(const std::string& json, const char* pointer) {
    const auto document = nlohmann::json::parse(json);
    const nlohmann::json::json_pointer place{pointer};
    return document.contains(place) ? document.at(place).dump() : "nothing at " + std::string{pointer};
  }

  /// Seconds since 1970 so many hours from now, as JSON.
  std::string hoursFromNow(double hours) const {
    return std::to_string(static_cast<std::int64_t>(secondsSince1970(world.clock->now()) + hours * secondsPerHour));
  }

  std::vector<FastRecord> onDisk() const { return openDatabase(file).history().fasts; }

  tests::TemporaryFolder folder;
  std::filesystem::path file = folder.path / "mivo.sqlite";
  std::shared_ptr<WeekCalendar> calendar =
      std::make_shared<WeekCalendar>(**adapters::makeCalendar("gregorian", adapters::loadTimeZone("UTC").value(), 2));
  std::shared_ptr<Tips> shippedOnes = std::make_shared<Tips>(world.dependencies.userDefaults);
  std::shared_ptr<const DataFiles> files = std::make_shared<FilesOnDisk>(
      FilesOnDisk::Place{.database = file,
                         .zone = [] { return adapters::loadTimeZone("UTC").value(); },
                         .settings = [] { return std::vector<Setting>{}; },
                         .ids = std::make_shared<adapters::LocalUUIDGenerator>(),
                         .words =
                             [] {
                               return std::make_shared<const TypedDateWords>(
                                   typedDateWords(adapters::dateWords(adapters::UserLocale::parse("en-GB").value())));
                             },
                         .defaults = world.dependencies.userDefaults});
  std::unique_ptr<Frontend> frontend;
  Subscription told;
  std::vector<std::string> lastTold;
};

TEST_F(FrontendTest, composesEveryPageAndListOfTenYears) {
  HistoryChange all;
  for (int day = 3650; day > 0; --day) {
    const Date end = world.clock->now() - Duration{day * secondsPerDay};
    const auto id = static_cast<std::uint64_t>(day);
    all.addedFasts.push_back({finishedFast({7, id}, end - Duration{57600}, end, 57600), {}});
    all.addedWeights.push_back({{8, id}, end, 80 - 0.001 * day});
  }
  openDatabase(file).apply(all);
  std::apply(
      [&](const auto&... page) {
        (
            [&] {
              const auto json = app().page(page.name);
              ASSERT_TRUE(json) << page.name;
              const auto document = nlohmann::json::parse(*json, nullptr, false);
              EXPECT_TRUE(document.is_object() || document.is_null()) << page.name << ": " << *json;
            }(),
            ...);
      },
      pages);
  std::apply(
      [&](const auto&... list) {
        (
            [&] {
              EXPECT_NE(rowsAt(list.name, 0, 3, "/2"), "nothing at /2") << list.name;
              EXPECT_EQ(rowsAt(list.name, 0, 3, "/3"), "nothing at /3") << list.name;
              EXPECT_EQ(app().rows(list.name, 1U << 30, 3), "[]") << list.name;
            }(),
            ...);
      },
      lists);
  EXPECT_EQ(at("history", "/count"), "3650");
  EXPECT_EQ(at("weights", "/count"), "3650");
  EXPECT_EQ(rowsAt("historyMonths", 1, 1, "/0/row"), "29");
  EXPECT_EQ(at("weightChart", "/lines/0/count"), "90");
  EXPECT_EQ(at("fastingChart", "/count"), "3652");
  EXPECT_EQ(rowsAt("historyRows", 0, 1, "/0/length"), "\"16h 0m\"");
  EXPECT_EQ(app().page("nothing"), std::nullopt);
  EXPECT_EQ(app().page("historyRows"), std::nullopt);
  EXPECT_EQ(app().rows("history", 0, 1), std::nullopt);
}

TEST_F(FrontendTest, tellsOfNoPageThatNobodyAskedForAndOfNoneThatStayedEqual) {
  EXPECT_THAT(send(R"("didTapFastingButton")"), IsEmpty());
  app().page("fasting");
  app().page("history");
  app().page("about");
  app().page("words");
  app().rows("historyRows", 0, 10);
  pass(3 * secondsPerHour);
  EXPECT_THAT(send(R"("didTapFastingButton")"), UnorderedElementsAre("fasting", "history", "historyRows"));
  EXPECT_THAT(send(R"({"didOpen": "settings"})"), IsEmpty());
}

TEST_F(FrontendTest, livesThroughADayByActionsAlone) {
  for (const char* name :
       {"screens", "message", "statistics", "addWeight", "weights", "fasting", "history", "editedFast", "severalFasts",
        "settings", "cards", "backups", "import", "goalChoice", "dateChoice", "editedWeight"})
    app().page(name);
  app().rows("historyRows", 0, 1);
  EXPECT_EQ(app().page("editedFast"), "null");

  EXPECT_THAT(send(R"({"didTapStart": {"start": )" + hoursFromNow(-17) + R"(, "goalSeconds": 57600}})"),
              testing::AllOf(Contains("fasting"), Contains("statistics"), Not(Contains("message"))));
  EXPECT_EQ(at("fasting", "/isRunning"), "true");
  EXPECT_EQ(at("fasting", "/elapsed"), "\"17:00:00\"");

  EXPECT_THAT(send(R"("didTapFastingButton")"),
              testing::AllOf(Contains("fasting"), Contains("message"), Contains("history"), Contains("historyRows")));
  EXPECT_EQ(at("message", "/text"), "\"Fast ended\"");
  ASSERT_EQ(onDisk().size(), 1U);

  EXPECT_THAT(send(R"({"didTapFast": 0})"), UnorderedElementsAre("editedFast", "screens", "import"));
  EXPECT_EQ(at("screens", "/sheet"), "\"editFast\"");
  EXPECT_THAT(send(R"({"didChangeDraftStart": )" + hoursFromNow(-18) + "}"), ElementsAre("editedFast"));
  EXPECT_EQ(at("editedFast", "/length"), "\"18h 0m\"");
  send(R"("didTapSaveDraft")");
  EXPECT_EQ(onDisk().front().fast.finished->duration(), 18 * secondsPerHour);
  EXPECT_EQ(at("screens", "/sheet"), "\"\"");
  EXPECT_EQ(at("editedFast", "/length"), "\"18h 0m\"") << "as it was last, while it closes";
  EXPECT_THAT(send(R"("didTapMessage")"), Contains("historyRows"));
  EXPECT_EQ(onDisk().front().fast.finished->duration(), 17 * secondsPerHour) << "undone";

  EXPECT_THAT(send(R"({"statistics": {"addWeightLogAction": {"didChangeText": "81.4"}}})"), ElementsAre("addWeight"));
  EXPECT_THAT(send(R"({"statistics": {"addWeightLogAction": "didTapSave"}})"),
              testing::AllOf(Contains("statistics"), Contains("weights"), Contains("message")));
  EXPECT_EQ(rowsAt("weightRows", 0, 9, "/0/weight"), "\"81.4 kg\"");
  send(R"({"didTapWeight": 0})");
  EXPECT_EQ(at("editedWeight", "/fieldText"), "\"81.4\"");
  EXPECT_THAT(send(R"("didDeleteEditedWeight")"), testing::AllOf(Contains("weights"), Contains("screens")));
  EXPECT_EQ(at("weights", "/count"), "0");

  EXPECT_THAT(send(R"({"didChooseTimeRange": 2})"), Contains("statistics"));
  EXPECT_EQ(app().state().statistics.timeRange, TimeRange::year);
  EXPECT_EQ(send(R"({"statistics": {"binding": {"timeRange": "month"}}})").front(), "statistics");

  EXPECT_THAT(send(R"({"didChooseWeightUnit": 1})"), Contains("settings"));
  EXPECT_EQ(at("settings", "/weightUnit/chosen"), "1");
  EXPECT_THAT(send(R"({"didToggleCard": {"group": "cards", "row": 0}})"),
              testing::AllOf(Contains("cards"), Contains("statistics")));
  EXPECT_EQ(at("cards", "/cards/0/isShown"), "false");
  EXPECT_THAT(send(R"({"didChooseFirstWeekday": 7})"), Contains("settings"));
  EXPECT_EQ(calendar->firstWeekday(), 1);

  send(R"({"didOpen": "severalFasts"})");
  EXPECT_THAT(send(R"({"didTypeFasts": "2026-06-20 20:00 - 2026-06-21 12:00\n2026-06-21 20:00 - nonsense"})"),
              Contains("severalFasts"));
  EXPECT_EQ(at("severalFasts", "/canAdd"), "true");
  EXPECT_EQ(at("severalFasts", "/refused/0/reason").empty(), false);
  send(R"({"importing": {"presented": "didTapImport"}})");
  EXPECT_EQ(onDisk().size(), 2U);
  EXPECT_EQ(at("history", "/count"), "2");

  send(R"({"didOpen": "backups"})");
  EXPECT_EQ(at("screens", "/page"), "\"backups\"");
  EXPECT_THAT(send(R"({"backups": "didTapBackUp"})"), testing::AllOf(Contains("backups"), Contains("message")));
  EXPECT_NE(at("backups", "/rows/0/date"), "nothing at /rows/0/date");
}

TEST_F(FrontendTest, tellsEachPageOnceForAnAction) {
  app().page("screens");
  app().page("import");
  app().page("history");
  send(R"({"didTapStart": {"start": )" + hoursFromNow(-17) + R"(, "goalSeconds": 57600}})");
  send(R"("didTapFastingButton")");
  send(R"({"didTapFast": 0})");
  lastTold.clear();
  ASSERT_TRUE(app().send(R"("didDeleteEditedFast")"));  // dismisses and deletes
  EXPECT_THAT(lastTold, UnorderedElementsAre("screens", "import"));
  settle();
  EXPECT_THAT(lastTold, UnorderedElementsAre("screens", "import", "history"));
}

TEST_F(FrontendTest, hasARoadmapWhileItIsOpen) {
  EXPECT_EQ(app().page("roadmap"), "null");
  EXPECT_TRUE(app().send(R"({"roadmap": {"didTapVote": "1"}})")) << "nobody is there to take it";
  EXPECT_THAT(send(R"({"didOpen": "roadmap"})"), Contains("roadmap"));
  EXPECT_EQ(at("roadmap", "/items/0/title"), "\"Widgets\"");
  EXPECT_THAT(send(R"({"roadmap": {"didTapStatus": "planned"}})"), ElementsAre("roadmap"));
  EXPECT_EQ(at("roadmap", "/filters/0/isChosen"), "false");
  send(R"({"didOpen": "feedback"})");
  EXPECT_EQ(at("roadmap", "/filters/0/isChosen"), "false") << "a sheet over it leaves it alone";
  EXPECT_EQ(at("mail", "/canSend"), "false");
  EXPECT_THAT(send(R"({"didTypeIdea": {"idea": "More bars", "replyTo": "me@example.org"}})"), ElementsAre("mail"));
  EXPECT_EQ(at("mail", "/canSend"), "true");
  send(R"({"didOpen": "statistics"})");
  EXPECT_EQ(at("roadmap", "/items/0/title"), "\"Widgets\"") << "as it was last";
  send(R"({"didOpen": "roadmap"})");
  EXPECT_EQ(at("roadmap", "/filters/0/isChosen"), "true") << "begun anew";
}

TEST_F(FrontendTest, ticksWhereTimeChangesWhatIsSeen) {
  app().page("fasting");
  EXPECT_DOUBLE_EQ(app().untilNextTick(), 60) << "nothing runs: the clock's minutes";
  pass(0.25);
  send(R"("didTapFastingButton")");
  send(R"({"didOpen": "fasting"})");
  EXPECT_NEAR(app().untilNextTick(), 1, 1e-6);
  pass(1);
  lastTold.clear();
  app().tick();
  EXPECT_THAT(lastTold, ElementsAre("fasting"));
  EXPECT_EQ(at("fasting", "/elapsed"), "\"0:00:01\"");
  app().setWatched(false);
  EXPECT_NEAR(app().untilNextTick(), 58.75, 1e-6) << "nobody sees the seconds";
  app().page("statistics");
  pass(58.75);
  lastTold.clear();
  app().tick();
  EXPECT_EQ(app().state().now, world.clock->now());
  EXPECT_THAT(lastTold, Contains("fasting"));
}

TEST_F(FrontendTest, tellsAReminderOnce) {
  app().page("reminder");
  send(R"({"didTapStart": {"start": )" + hoursFromNow(-15) + R"(, "goalSeconds": 57600}})");
  EXPECT_EQ(at("reminder", "/id"), "\"\"") << "nobody wants to be told";
  EXPECT_THAT(send(R"({"settings": "didToggleGoalReminder"})"), Contains("reminder"));
  EXPECT_EQ(at("reminder", "/due"), hoursFromNow(1));
  EXPECT_EQ(at("reminder", "/title"), "\"Goal reached\"");
  pass(secondsPerHour);
  EXPECT_THAT(send(R"({"didTellReminder": "goal-00000000-0000-0000-0000-000000000000"})"), IsEmpty());
  EXPECT_THAT(send(R"({"didTellReminder": )" + at("reminder", "/id") + "}"), ElementsAre("reminder"));
  EXPECT_EQ(at("reminder", "/id"), "\"\"");
}

TEST_F(FrontendTest, scrollsAndSelectsInCharts) {
  for (const char* name : {"fastingChart", "weightChart"}) app().page(name);
  send(R"({"didTapStart": {"start": )" + hoursFromNow(-30) + R"(, "goalSeconds": 57600}})");
  send(R"("didTapFastingButton")");
  const std::string id = rowsAt("fastingBars", 0, 1, "/0/id");
  EXPECT_THAT(send(R"({"statistics": {"fastingChartAction": {"didTapBar": )" + id + "}}}"),
              ElementsAre("fastingChart"));
  EXPECT_EQ(at("fastingChart", "/selected"), "0");
  EXPECT_THAT(send(R"({"didSeeFastingBars": {"first": 0, "last": 99}})"), ElementsAre("fastingChart"));
  EXPECT_EQ(at("fastingChart", "/visibleDates"), "\"06-30..07-02\"");

  send(R"({"statistics": {"addWeightLogAction": {"didChangeText": "81.4"}}})");
  send(R"({"statistics": {"addWeightLogAction": "didTapSave"}})");
  EXPECT_EQ(at("weightChart", "/average"), "\"81.4 kg\"");
  send(R"({"weightChart": {"didTouch": )" + hoursFromNow(0) + "}}");
  world.queue->advance(Duration{1});  // a finger that moves on is not told
  EXPECT_THAT(lastTold, ElementsAre("weightChart"));
  EXPECT_EQ(at("weightChart", "/selectedValues/0"), "\"81.4 kg\"");
  EXPECT_THAT(send(R"({"weightChart": {"didScroll": )" + hoursFromNow(-24 * 30) + "}}"), ElementsAre("weightChart"));
  EXPECT_EQ(at("weightChart", "/visibleDates"), "\"06-01..06-08\"");
  EXPECT_NE(at("weightChart", "/note"), "\"\"");
}

TEST_F(FrontendTest, choosesGoalsAndDates) {
  for (const char* name : {"goalChoice", "dateChoice"}) app().page(name);
  app().rows("days", 0, 1);
  EXPECT_THAT(send(R"({"goalChoice": {"didBegin": 57600}})"), ElementsAre("goalChoice"));
  EXPECT_THAT(send(R"({"goalChoice": {"didType": "17:30"}})"), ElementsAre("goalChoice"));
  EXPECT_EQ(at("goalChoice", "/seconds"), "63000");
  EXPECT_EQ(refusal(R"({"goalChoice": {"didBegin": -1}})"), "didBegin: expected a number from 0 to 315576000000");

  EXPECT_THAT(send(R"({"dateChoice": {"didBegin": )" + hoursFromNow(-3) + "}}"),
              UnorderedElementsAre("dateChoice", "days"));
  EXPECT_EQ(at("dateChoice", "/choice/hour"), "9");
  send(R"({"dateChoice": {"didTurnHour": 7}})");
  EXPECT_EQ(at("dateChoice", "/choice/instant"), std::to_string(1782907200 - 5 * 3600));
  send(R"({"dateChoice": {"didType": "yesterday-ish"}})");
  EXPECT_EQ(at("dateChoice", "/isRefused"), "true");
  send(R"({"dateChoice": {"didType": "2026-06-28 08:05"}})");
  EXPECT_EQ(at("dateChoice", "/isRefused"), "false");
  EXPECT_EQ(at("dateChoice", "/choice/minute"), "5");
  EXPECT_EQ(at("dateChoice", "/startProblem"), "\"\"");
}

TEST_F(FrontendTest, refusesWhatIsNoPlaceOfAChoice) {
  const auto before = app().state();
  for (const auto& [json, sentence] : std::vector<std::pair<const char*, const char*>>{
           {R"({"didChooseTimeRange": 3})", "didChooseTimeRange: expected a number from 0 to 2"},
           {R"({"didChooseWeightUnit": 3})", "didChooseWeightUnit: expected a number from 0 to 2"},
           {R"({"didChooseFirstWeekday": 8})", "didChooseFirstWeekday: expected a number from 0 to 7"},
           {R"({"didChooseAppearance": 9223372036854775807})", "didChooseAppearance: expected a number from 0 to 2"},
           {R"({"didChooseCounted": 2})", "didChooseCounted: expected a number from 0 to 1"},
           {R"({"didChooseTextSize": 84})", "didChooseTextSize: expected a number from 85 to 200"},
           {R"({"didToggleCard": {"group": "trends", "row": 99}})", "didToggleCard: expected a number from 0 to 6"},
           {R"({"didExportRow": {"row": 5, "path": "a"}})", "didExportRow: expected a number from 0 to 4"},
           {R"({"didChangeGoal": -1})", "didChangeGoal: expected a number from 0 to 315576000000"},
           {R"({"settings": {"didChooseGoal": 315576000001}})",
            "didChooseGoal: expected a number from 0 to 315576000000"},
           {R"({"didFail": "x"})", "didFail: expected an action that a person can take"}})
    EXPECT_EQ(refusal(json), sentence);
  for (const char* gone : {R"({"didTapFast": 7})", R"({"didDeleteFastOfRow": 7})", R"({"didTapWeight": 7})",
                           R"({"didDeleteWeightOfRow": 7})", R"("didDeleteEditedFast")", R"("didDeleteEditedWeight")"})
    EXPECT_EQ(refusal(gone), "") << "a row may be tapped while it goes";
  settle();
  EXPECT_TRUE(app().state() == before);
}

TEST_F(FrontendTest, tellsAllTextsAnewInAnotherTimeZone) {
  send(R"({"didTapStart": {"start": )" + hoursFromNow(-30) + R"(, "goalSeconds": 57600}})");
  send(R"("didTapFastingButton")");
  app().rows("historyRows", 0, 1);
  app().page("message");
  lastTold.clear();
  calendar->moveTo(adapters::loadTimeZone("Europe/Berlin").value());
  app().lookAround("Europe/Berlin");
  EXPECT_THAT(lastTold, UnorderedElementsAre("historyRows", "message"));
}

}  // namespace
}  // namespace mivo::host
