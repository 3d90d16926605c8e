// SPDX-License-Identifier: MIT
#include "mivo/statistics/ComposeScreen.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "mivo/statistics/CardTexts.h"
#include "mivo/statistics/LineCharts.h"
#include "mivo/store/Print.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using Flags = DashboardSettingsFeature::State;
using Kinds = std::vector<std::string>;
using testing::ElementsAre;

constexpr Date noon = dateSince1970(1782907200);

Flags withAll(bool isOn) {
  Flags flags;
  fields(flags, [isOn](std::string_view, Observed<bool>& flag) { flag = isOn; });
  return flags;
}

StatsContainer someStats() {
  StatsContainer stats = StatsContainer::empty();
  stats.totalFasts = 239;
  stats.totalHours = 3960;
  stats.averageFast = 16 * secondsPerHour + 34 * 60;
  stats.longestFast = 41 * secondsPerHour;
  stats.currentStreak = 25;
  stats.maxStreak = 57;
  return stats;
}

/// "summary", "trend fasting".
std::string name(const Card& card) {
  const auto* trend = std::get_if<TrendCard>(&card.content);
  return enumeratorText(card.kind) + (trend ? ' ' + enumeratorText(trend->zone) : "");
}

class Screen : public testing::Test {
 protected:
  StatsContainer stats = someStats();
  Flags flags = withAll(true);
  ScreenInput input{.stats = stats, .timeRange = TimeRange::week, .dashboardSettings = flags, .now = noon};
  DependencyScope scope{std::make_shared<const Dependencies>(tests::fixedDependencies())};

  std::vector<Card> cards() const { return composeScreen(input, screenFormatters()); }

  Kinds kinds() const {
    Kinds names;
    for (const Card& card : cards()) names.push_back(name(card));
    return names;
  }

  /// The texts of the only card of a kind.
  template <class Content>
  Content content(CardKind kind) const {
    const auto all = cards();
    const auto found = std::ranges::find(all, kind, &Card::kind);
    EXPECT_NE(found, all.end()) << enumeratorText(kind);
    return std::get<Content>(found->content);
  }
};

struct FlagRow {
  Observed<bool> Flags::* flag;
  const char* card;
  bool isRanged;  // whether the picker of the range stands above it
};

const std::vector<FlagRow> rows{
    {&Flags::showSummary, "summary", false},
    {&Flags::showDonations, "donation", false},
    {&Flags::showRoadmap, "roadmap", false},
    {&Flags::showWeightLogging, "addWeight", false},
    {&Flags::showWeightGoal, "goalWeight", false},
    {&Flags::showBadges, "badges", false},
    {&Flags::showFastingChart, "fastingChart", true},
    {&Flags::showEatingChart, "eatingChart", true},
    {&Flags::showWeightChart, "weightChart", true},
    {&Flags::showWeightFastingChart, "weightFastingChart", true},
    {&Flags::showTotalFastingHours, "trend fasting", true},
    {&Flags::showTotalEatingHours, "trend eating", true},
    {&Flags::showAnabolicHours, "trend anabolic", true},
    {&Flags::showCatabolicHours, "trend catabolic", true},
    {&Flags::showFatBurningHours, "trend fatBurning", true},
    {&Flags::showKetosisHours, "trend ketosis", true},
    {&Flags::showDeepKetosisHours, "trend deepKetosis", true},
};

TEST_F(Screen, standsInOrder) {
  input.tip = Tip{"goal", "Choose your goal", "Tap the goal."};
  input.showHealthKitCard = true;
  stats.hasOverlappingFasts = true;
  EXPECT_THAT(kinds(),
              ElementsAre("tip", "summary", "overlappingFasts", "donation", "roadmap", "healthData", "addWeight",
                          "goalWeight", "badges", "timeRange", "fastingChart", "eatingChart", "weightChart",
                          "weightFastingChart", "trend fasting", "trend eating", "trend anabolic", "trend catabolic",
                          "trend fatBurning", "trend ketosis", "trend deepKetosis"));
}

TEST_F(Screen, showsACardWhereItsFlagAloneIsOn) {
  for (const FlagRow& row : rows) {
    flags = withAll(false);
    flags.*row.flag = true;
    EXPECT_EQ(kinds(), row.isRanged ? (Kinds{"timeRange", row.card}) : Kinds{row.card}) << row.card;
  }
}

TEST_F(Screen, hidesACardWhereItsFlagAloneIsOff) {
  const Kinds all = kinds();
  for (const FlagRow& row : rows) {
    flags = withAll(true);
    flags.*row.flag = false;
    Kinds expected = all;
    std::erase(expected, row.card);
    ASSERT_EQ(expected.size() + 1, all.size()) << row.card;
    EXPECT_EQ(kinds(), expected) << row.card;
  }
}

TEST_F(Screen, hidesThePickerWithEverythingThatItRules) {
  for (const FlagRow& row : rows) flags.*row.flag = !row.isRanged;
  EXPECT_THAT(kinds(), ElementsAre("summary", "donation", "roadmap", "addWeight", "goalWeight", "badges"));
}

TEST_F(Screen, invitesToTheFirstFastWhateverIsOff) {
  stats.totalFasts = 0;
  for (const bool isOn : {true, false}) {
    flags = withAll(isOn);
    EXPECT_EQ(kinds().front(), "start");
    EXPECT_THAT(kinds(), testing::Not(testing::AnyOf(testing::Contains("summary"), testing::Contains("configure"))));
  }
  EXPECT_THAT(kinds(), ElementsAre("start"));
}

TEST_F(Screen, saysWhereToSwitchCardsOnWhereNoneIs) {
  flags = withAll(false);
  EXPECT_THAT(kinds(), ElementsAre("configure"));
  input.tip = Tip{"goal", "Choose your goal", "Tap the goal."};
  EXPECT_THAT(kinds(), ElementsAre("tip", "configure"));
  stats.hasOverlappingFasts = true;
  EXPECT_THAT(kinds(), ElementsAre("tip", "configure", "overlappingFasts"));
}

struct NoticeRow {
  CardKind kind;
  NoticeCard expected;
};

TEST_F(Screen, putsTheNoticesAsTheyStand) {
  stats.hasOverlappingFasts = true;
  input.showHealthKitCard = true;
  input.tip = Tip{"goal", "Choose your goal", "Tap the goal on the Fasting tab to change its length."};
  const std::vector<NoticeRow> notices{
      {CardKind::tip, {.title = "Choose your goal", .text = "Tap the goal on the Fasting tab to change its length."}},
      {CardKind::overlappingFasts,
       {.title = "Overlapping Fasts",
        .text = "Some of your fasts are overlapping. This is invalid and causes incorrect statistics. Please correct "
                "your fasting data.",
        .button = "Review and fix"}},
      {CardKind::donation,
       {.text = "Mivo is free, privacy-friendly and without ads. Donate to support my work. Thank you!"}},
      {CardKind::roadmap, {.button = "Give feedback, suggest ideas and vote on upcoming features"}},
      {CardKind::healthData,
       {.title = "Health data",
        .text = "Allow access to your health data to keep your weight up to date. It stays on this device.",
        .button = "Allow access"}},
      {CardKind::addWeight, {.title = "Add weight", .button = "Save"}},
  };
  for (const NoticeRow& row : notices)
    EXPECT_EQ(content<NoticeCard>(row.kind), row.expected) << enumeratorText(row.kind);

  flags = withAll(false);
  EXPECT_EQ(content<NoticeCard>(CardKind::configure),
            (NoticeCard{.text = "Configure cards to show here in Settings -> Statistics and Fasting Zones.",
                        .button = "Open Settings"}));
  stats.totalFasts = 0;
  EXPECT_EQ(content<NoticeCard>(CardKind::start),
            (NoticeCard{.text = "Get started by doing your first fast.", .button = "Start fast"}));
}

TEST_F(Screen, summarises) {
  EXPECT_EQ(content<SummaryCard>(CardKind::summary), (SummaryCard{.title = "Summary",
                                                                  .period = "All time",
                                                                  .figures = {{{"Fasts", "239"},
                                                                               {"Total fasting time", "3960h"},
                                                                               {"Average fast", "16h 34m"},
                                                                               {"Longest fast", "41h 0m"},
                                                                               {"Current streak", "25 days"},
                                                                               {"Longest streak", "57 days"}}}}));
}

TEST_F(Screen, saysTotalsBelowADayToTheMinuteAsTheLengthsBesideThem) {
  const auto total = [this] { return content<SummaryCard>(CardKind::summary).figures[1].value; };
  stats.totalFasts = 1;
  stats.totalHours = 22;
  stats.averageFast = 22 * secondsPerHour + 44 * 60;
  EXPECT_EQ(total(), "22h 44m");
  stats.totalHours = 24;
  EXPECT_EQ(total(), "24h");
}

TEST_F(Screen, countsStreaksInWhatTheUserCounts) {
  input.countingEntity = StreakSettings::CountingEntity::fasts;
  stats.currentStreak = 1;
  const auto figures = content<SummaryCard>(CardKind::summary).figures;
  EXPECT_EQ(figures[4].value, "1 fast");
  EXPECT_EQ(figures[5].value, "57 fasts");
  EXPECT_EQ(content<BadgesCard>(CardKind::badges).streak.label, "50 fasts in a row");
}

TEST_F(Screen, showsTheBestBadgeOfEachFamily) {
  EXPECT_EQ(content<BadgesCard>(CardKind::badges),
            (BadgesCard{.title = "Badges",
                        .milestone = {100, "100", true, "100 fasts", "239 of 250", 239.0 / 250},
                        .streak = {50, "50", true, "50 days in a row", "57 of 100", 0.57}}));
  stats.totalFasts = 5000;
  stats.maxStreak = 0;
  EXPECT_EQ(content<BadgesCard>(CardKind::badges),
            (BadgesCard{.title = "Badges",
                        .milestone = {5000, "5000", true, "5000 fasts", "All badges earned", 1},
                        .streak = {1, "1", false, "1 day in a row", "0 of 1", 0}}));
}

TEST_F(Screen, offersTheRanges) {
  input.timeRange = TimeRange::month;
  EXPECT_EQ(content<TimeRangeCard>(CardKind::timeRange), (TimeRangeCard{.title = "Time range for trends",
                                                                        .prompt = "Select a time range",
                                                                        .selected = "month",
                                                                        .options = {"week", "month", "year"},
                                                                        .selectedIndex = 1}));
}

TEST_F(Screen, tellsTheWeightAndItsTrend) {
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight),
            (GoalWeightCard{.title = "Goal weight", .button = "Set a goal"}));

  stats.currentWeightInKg = 72.5;
  GoalWeightCard expected{.title = "Goal weight",
                          .current = "72.5 kg",
                          .currentLabel = "Current",
                          .trend = "No clear trend in the last 90 days.",
                          .afterFigure = "No clear trend in the last 90 days.",
                          .button = "Set a goal"};
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight), expected);

  stats.weightTrendInKg = 1.5;
  stats.trendTimeRange = ClosedDateRange{noon - Duration{80 * secondsPerDay}, noon};
  expected.trend = "+1.5 kg since MMMMd(1775995200).";
  expected.trendFigure = "+1.5 kg";
  expected.afterFigure = " since MMMMd(1775995200).";
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight), expected);
}

TEST_F(Screen, tellsTheWayToTheGoal) {
  input.goalWeightInKg = 70;
  GoalWeightCard expected{.title = "Goal weight",
                          .goal = "70.0 kg",
                          .goalLabel = "Goal",
                          .afterFigure = "Add your weight to see how far your goal is.",
                          .outlook = "Add your weight to see how far your goal is."};
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight), expected);

  stats.currentWeightInKg = 72.5;
  expected.current = "72.5 kg";
  expected.currentLabel = "Current";
  expected.remaining = "2.5 kg to go";
  expected.trend = expected.afterFigure = "No clear trend in the last 90 days.";
  expected.outlook = "";
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight), expected) << "the trend says why";

  stats.weightTrendInKg = -2.5;
  stats.trendTimeRange = ClosedDateRange{noon - Duration{80 * secondsPerDay}, noon};
  expected.trend = "-2.5 kg since MMMMd(1775995200).";
  expected.outlook = "At this pace you reach your goal around yMMMMd(1789819200).";
  expected.trendFigure = "-2.5 kg";
  expected.afterFigure = " since MMMMd(1775995200). " + expected.outlook;
  expected.fraction = 0.5;
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight), expected);

  stats.currentWeightInKg = 70;
  expected.current = "70.0 kg";
  expected.remaining = "";
  expected.outlook = "You have reached your goal.";
  expected.afterFigure = " since MMMMd(1775995200). You have reached your goal.";
  expected.fraction = 1;
  EXPECT_EQ(content<GoalWeightCard>(CardKind::goalWeight), expected);
}

TEST_F(Screen, setsNoFigureApartWhereTheSentenceBeginsWithAnother) {
  struct Turned : tests::EnglishTexts {
    std::string text(std::string_view key, std::string_view context = {}) const override {
      return key == "{1} since {2}." ? "Since {2}: {1}." : EnglishTexts::text(key, context);
    }
  };
  stats.currentWeightInKg = 72.5;
  stats.weightTrendInKg = 1.5;
  stats.trendTimeRange = ClosedDateRange{noon, noon};
  const Turned texts;
  ScreenFormatters turned = screenFormatters();
  const ScreenFormatters formatters{texts, turned.hourMin, turned.hour, turned.numbers, turned.masses, turned.dates};
  const auto card = std::get<GoalWeightCard>(goalWeightTexts(input, formatters));
  EXPECT_EQ(card.trendFigure, "");
  EXPECT_EQ(card.afterFigure, card.trend);
}

TEST_F(Screen, saysWhatIsWrongWithAWeight) {
  input.weightProblem = "This is not a weight.";
  EXPECT_EQ(content<NoticeCard>(CardKind::addWeight),
            (NoticeCard{.title = "Add weight", .text = "This is not a weight.", .button = "Save"}));
}

TEST_F(Screen, saysWhatToDoWhereAChartIsEmpty) {
  EXPECT_EQ(content<DayBarsCard>(CardKind::fastingChart),
            (DayBarsCard{.title = "Fasting", .empty = "Start a fast to see your chart."}));
  EXPECT_EQ(content<DayBarsCard>(CardKind::eatingChart),
            (DayBarsCard{.title = "Eating", .empty = "Start a fast to see your chart."}));
  EXPECT_EQ(
      content<WeightChartCard>(CardKind::weightChart),
      (WeightChartCard{.title = "Weight", .averageLabel = "average", .empty = "Add a weight to see your chart."}));
  EXPECT_EQ(content<WeightFastingChartCard>(CardKind::weightFastingChart),
            (WeightFastingChartCard{.title = "Weight & fasting hours",
                                    .weightLegend = "Avg. body weight last 7d",
                                    .fastingLegend = "Total fasting h last 3m",
                                    .empty = "Add a weight or a fast to see your chart."}));

  stats.eatingChartState.data = IdentifiedArray{ChartDataEntry{{noon, noon}, 0.5, "Wed"}};
  stats.weightLogsForWeek = List{BodyWeightSample{{0, 1}, noon, 80}};
  stats.fastingAvgLogsForWeek = List{FastingAverageEntry{{0, 1}, noon, 3600, 1}};
  EXPECT_NE(content<DayBarsCard>(CardKind::fastingChart).empty, "");
  EXPECT_EQ(content<DayBarsCard>(CardKind::eatingChart).empty, "");
  EXPECT_EQ(content<WeightChartCard>(CardKind::weightChart).empty, "");
  EXPECT_EQ(content<WeightFastingChartCard>(CardKind::weightFastingChart).empty, "");

  input.timeRange = TimeRange::year;
  EXPECT_NE(content<WeightChartCard>(CardKind::weightChart).empty, "") << "each range has series of its own";
  EXPECT_NE(content<WeightFastingChartCard>(CardKind::weightFastingChart).empty, "");
}

TEST_F(Screen, tellsNoAverageOnPlatformsWithoutHeaders) {
  input.platformVersion = 16;
  EXPECT_EQ(content<WeightChartCard>(CardKind::weightChart).averageLabel, "");
}

struct TrendTextRow {
  LegacyFastingZone zone;
  const char *name, *detail;
};

TEST_F(Screen, tellsEachZonesHoursAndItsTotal) {
  const std::vector<TrendTextRow> zones{
      {LegacyFastingZone::fasting, "Fasting", "42h"},
      {LegacyFastingZone::eating, "Eating", "42h"},
      {LegacyFastingZone::anabolic, "Anabolic", "0–4h · 42h"},
      {LegacyFastingZone::catabolic, "Catabolic", "4–16h · 42h"},
      {LegacyFastingZone::fatBurning, "Fat Burning", "16–24h · 42h"},
      {LegacyFastingZone::ketosis, "Ketosis", "24–72h · 42h"},
      {LegacyFastingZone::deepKetosis, "Deep Ketosis", "72h+ · 42h"},
  };
  const AverageThisLastTimeRange averages{.thisTimeRange = 12 * secondsPerHour, .lastTimeRange = 6 * secondsPerHour};
  for (auto* each : {&stats.fastingAverages, &stats.eatingAverages, &stats.anabolicAverages, &stats.catabolicAverages,
                     &stats.fatBurningAverages, &stats.ketosisAverages, &stats.deepKetosisAverages})
    *each = averages;
  flags = withAll(false);
  for (const FlagRow& row : rows)
    if (std::string{row.card}.starts_with("trend")) flags.*row.flag = true;
  input.daysOfThisRange = 3.5;

  const auto all = cards();
  ASSERT_EQ(all.size(), zones.size() + 1);
  for (std::size_t index = 0; index < zones.size(); ++index) {
    const auto& [zone, name, detail] = zones[index];
    EXPECT_EQ(std::get<TrendCard>(all[index + 1].content),
              (TrendCard{zone, "Trends", name, "42h", detail, "This week", "Last week", "/day",
                         ZoneTrendDisplay{TimeRange::week, zone, 12 * secondsPerHour, 6 * secondsPerHour}}))
        << name;
  }
}

TEST_F(Screen, takesEachTrendFromItsOwnAverages) {
  double seconds = 0;
  for (auto* each : {&stats.fastingAverages, &stats.eatingAverages, &stats.anabolicAverages, &stats.catabolicAverages,
                     &stats.fatBurningAverages, &stats.ketosisAverages, &stats.deepKetosisAverages})
    *each = AverageThisLastTimeRange{seconds += secondsPerHour, 0};
  std::vector<std::string> averages;
  for (const Card& card : cards())
    if (const auto* trend = std::get_if<TrendCard>(&card.content)) averages.push_back(trend->display.thisTimeRangeAvg);
  EXPECT_THAT(averages, ElementsAre("1h 0m", "2h 0m", "3h 0m", "4h 0m", "5h 0m", "6h 0m", "7h 0m"));
}

TEST_F(Screen, tellsNoTotalWhereTheDaysAreNotKnown) {
  stats.fastingAverages = AverageThisLastTimeRange{3600, 3600};
  flags = withAll(false);
  flags.showTotalFastingHours = true;
  flags.showAnabolicHours = true;
  const auto all = cards();
  EXPECT_EQ(std::get<TrendCard>(all[1].content).detail, "");
  EXPECT_EQ(std::get<TrendCard>(all[2].content).detail, "0–4h");
  EXPECT_EQ(std::get<TrendCard>(all[2].content).total, "");
}

struct OneTip : TipCatalogue {
  std::optional<Tip> tip(std::string_view id) const override {
    return id == "goal" ? std::optional{Tip{"goal", "Choose your goal", "Tap the goal."}} : std::nullopt;
  }
  bool canDisplay(std::string_view) const override { return true; }
  std::optional<std::string> highestPriorityAvailableTip() const override { return std::nullopt; }
};

TEST(ShownTip, isTheCataloguesForTheCurrentIdentifier) {
  EXPECT_EQ(shownTip("goal", OneTip{}), (Tip{"goal", "Choose your goal", "Tap the goal."}));
  EXPECT_EQ(shownTip("unknown", OneTip{}), std::nullopt);
  EXPECT_EQ(shownTip(std::nullopt, OneTip{}), std::nullopt);
}

TEST(LineCharts, haveSeriesAndScalesOfTheirOwn) {
  StatsContainer stats = StatsContainer::empty();
  const auto logs = [](int seconds) { return List{BodyWeightSample{{}, dateSince1970(seconds), 80}}; };
  const auto weights = [](int seconds) { return List{WeightAverageEntry{{}, dateSince1970(seconds), 80}}; };
  const auto fasts = [](int seconds) { return List{FastingAverageEntry{{}, dateSince1970(seconds), 3600, 1}}; };
  stats.weightLogsForWeek = logs(1), stats.weightLogsForMonth = logs(2), stats.weightLogsForYear = logs(3);
  stats.weightAvgLogsForWeek = weights(4), stats.weightAvgLogsForMonth = weights(5);
  stats.weightAvgLogsForYear = weights(6);
  stats.fastingAvgLogsForWeek = fasts(7), stats.fastingAvgLogsForMonth = fasts(8);
  stats.fastingAvgLogsForYear = fasts(9);
  stats.weightChartScaleForWeek = 81, stats.weightChartScaleForMonth = 82, stats.weightChartScaleForYear = 83;
  stats.fastingChartScaleForWeek = 91, stats.fastingChartScaleForMonth = 92, stats.fastingChartScaleForYear = 93;

  EXPECT_EQ(weightLogs(stats, TimeRange::week), logs(1));
  EXPECT_EQ(weightLogs(stats, TimeRange::month), logs(2));
  EXPECT_EQ(weightLogs(stats, TimeRange::year), logs(3));
  EXPECT_EQ(weightFastingChart(stats, TimeRange::week),
            (WeightFastingChart{weights(4), fasts(7), TimeRange::week, 81, 91}));
  EXPECT_EQ(weightFastingChart(stats, TimeRange::month),
            (WeightFastingChart{weights(5), fasts(8), TimeRange::month, 82, 92}));
  EXPECT_EQ(weightFastingChart(stats, TimeRange::year),
            (WeightFastingChart{weights(6), fasts(9), TimeRange::year, 83, 93}));
}

}  // namespace
}  // namespace mivo
