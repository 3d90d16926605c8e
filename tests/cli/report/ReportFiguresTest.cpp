// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using Json = nlohmann::ordered_json;

// 16 h last week; 18 h and 16 h this week, Berlin's winter time.
constexpr std::string_view threeFasts = R"({"version": 1, "fasts": [
  {"start": "2026-02-20T20:00:00+01:00", "end": "2026-02-21T12:00:00+01:00"},
  {"start": "2026-02-27T20:00:00+01:00", "end": "2026-02-28T14:00:00+01:00"},
  {"start": "2026-02-28T20:00:00+01:00", "end": "2026-03-01T12:00:00+01:00"}],
 "weights": [{"date": "2026-02-20T07:00:00+01:00", "weightInKg": 82},
             {"date": "2026-03-01T07:00:00+01:00", "weightInKg": 81.4}]})";

Json reportOf(std::string_view snapshot, const std::string& arguments) {
  const Workplace place;
  place.write("a.json", snapshot);
  const Ran ran = place.run("report --input a.json --format json" + fixedRun + arguments);
  EXPECT_EQ(ran.status, 0) << ran.errors;
  EXPECT_EQ(ran.errors, "");
  return Json::parse(ran.output);
}

TEST(ReportFigures, areTheSameOfATableInWhicheverForm) {
  const Json fromTable = reportOf(
      "Fast Start;Hours\n20.02.2026 20:00;16\n27.02.2026 20:00;18\n28.02.2026 20:00;16\n28.02.2026 20:00;16\n", "");
  EXPECT_EQ(fromTable["stats"]["totalFasts"], 3) << "one stands there twice";
  EXPECT_EQ(fromTable["stats"]["longestFast"], 18 * 3600.0);
  EXPECT_EQ(fromTable["stats"]["fastingAverages"], reportOf(threeFasts, "")["stats"]["fastingAverages"]);
}

Json averages(double thisSeconds, double lastSeconds) {
  return {{"thisTimeRange", thisSeconds}, {"lastTimeRange", lastSeconds}};
}

TEST(ReportFigures, leaveOutAFastThatRunsButHasNotBegun) {
  const Json report = reportOf(R"({"version": 1, "fasts": [{"start": "2026-03-02T20:00:00Z", "end": null}]})", "");
  EXPECT_EQ(report["stats"]["totalFasts"], 0);
  const Json begun = reportOf(R"({"version": 1, "fasts": [{"start": "2026-03-01T11:00:00Z", "end": null}]})", "");
  EXPECT_EQ(begun["stats"]["totalFasts"], 1);
  EXPECT_EQ(begun["stats"]["longestFast"], 3600.0);
}

TEST(ReportFigures, areThoseOfTheHistory) {
  const Json report = reportOf(threeFasts, "");
  EXPECT_EQ(report["now"], "2026-03-01T12:00:00Z");
  EXPECT_EQ(report["timeRange"], "week");
  const Json& stats = report["stats"];
  EXPECT_EQ(stats["totalFasts"], 3);
  EXPECT_EQ(stats["totalHours"], 50);
  EXPECT_EQ(stats["averageFast"], 60000.0);
  EXPECT_EQ(stats["longestFast"], 64800.0);
  EXPECT_EQ(stats["currentStreak"], 3);
  EXPECT_EQ(stats["maxStreak"], 3);
  EXPECT_EQ(stats["fastingAverages"], averages(122400.0 / 7, 57600.0 / 7));
  EXPECT_EQ(stats["eatingAverages"], averages((604800.0 - 122400) / 7, (604800.0 - 57600) / 7));
  EXPECT_EQ(stats["anabolicAverages"], averages(28800.0 / 7, 14400.0 / 7));
  EXPECT_EQ(stats["catabolicAverages"], averages(86400.0 / 7, 43200.0 / 7));
  EXPECT_EQ(stats["fatBurningAverages"], averages(7200.0 / 7, 0));
  EXPECT_EQ(stats["ketosisAverages"], averages(0, 0));
  EXPECT_EQ(stats["currentWeightInKg"], 81.4);
  EXPECT_EQ(stats["hasOverlappingFasts"], false);
}

TEST(ReportFigures, leaveARunningFastOutThatHasNotBegun) {
  const auto totalFasts = [](const std::string& start) -> Json {
    return reportOf(R"({"version": 1, "fasts": [{"start": ")" + start + R"(", "end": null}]})",
                    "")["stats"]["totalFasts"];
  };
  EXPECT_EQ(totalFasts("2026-03-01T12:00:00Z"), 1);
  EXPECT_EQ(totalFasts("2026-03-01T12:00:01Z"), 0);
}

TEST(ReportFigures, haveABarForEachDay) {
  const Json chart = reportOf(threeFasts, "")["stats"]["fastingChartState"];
  EXPECT_EQ(chart["chartTimeUnit"], "day");
  EXPECT_EQ(chart["maxTime"], 64800.0);
  ASSERT_EQ(chart["data"].size(), 10u);
  EXPECT_EQ(
      chart["data"][8],
      Json({{"start", "2026-02-27T23:00:00Z"}, {"end", "2026-02-28T23:00:00Z"}, {"value", 1}, {"xAxisLabel", "Sat"}}));
  EXPECT_EQ(chart["data"][7]["value"], 14400.0 / 64800);
}

TEST(ReportFigures, haveEveryFieldInOrder) {
  const Json report = reportOf(threeFasts, "");
  std::vector<std::string> keys, statistics;
  for (const auto& [key, value] : report.items()) keys.push_back(key);
  for (const auto& [key, value] : report["stats"].items()) statistics.push_back(key);
  EXPECT_EQ(keys, (std::vector<std::string>{"now", "timeRange", "stats", "trends", "screen"}));
  EXPECT_EQ(statistics.size(), 34u);
  EXPECT_EQ(statistics.front(), "totalFasts");
  EXPECT_EQ(statistics.back(), "trendTimeRange");
  ASSERT_EQ(report["trends"].size(), 7u);
  for (const Json& trend : report["trends"]) EXPECT_EQ(trend.size(), 7u);
  EXPECT_EQ(report["trends"][0]["averageFastTimeRangeText"], "You're fasting more this week compared to last week.");
  EXPECT_EQ(report["trends"][2]["thisTimeRangeAvg"], "1h 8m");
  EXPECT_EQ(report["stats"]["weightLogsForWeek"][0]["id"], "00000000-0000-4000-8000-000000000004");
}

TEST(ReportFigures, listTheCardsOfTheScreen) {
  std::vector<std::string> kinds;
  const Json report = reportOf(threeFasts, "");
  for (const Json& card : report["screen"]) kinds.push_back(card["card"]);
  EXPECT_EQ(kinds, (std::vector<std::string>{"summary", "donation", "roadmap", "addWeight", "goalWeight", "badges",
                                             "timeRange", "fastingChart", "eatingChart", "weightChart",
                                             "weightFastingChart", "trend", "trend", "trend", "trend", "trend"}));
  EXPECT_EQ(report["screen"][15]["zone"], "fatBurning");
  EXPECT_EQ(reportOf(R"({"version": 1, "fasts": []})", "")["screen"][0]["card"], "start");
}

struct FigureRow {
  const char* name;
  const char* arguments;
  const char* pointer;
  Json expected;
};
void PrintTo(const FigureRow& row, std::ostream* out) { *out << row.name; }
class ReportFlag : public testing::TestWithParam<FigureRow> {};

TEST_P(ReportFlag, changesItsFigure) {
  const Json report = reportOf(threeFasts, GetParam().arguments);
  EXPECT_EQ(report[Json::json_pointer{GetParam().pointer}], GetParam().expected) << report.dump(1);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ReportFlag,
    testing::Values(FigureRow{"month", "--range month", "/stats/fastingAverages",
                              averages(43200, (16 * 3600 + 18 * 3600 + 4 * 3600 - 1) / 28.0)},
                    FigureRow{"countFasts", "--count fasts", "/stats/currentStreak", 2},
                    FigureRow{"longBreak", "--max-break-hours 200", "/stats/currentStreak", 10},
                    FigureRow{"sundayWeek", "--first-weekday 1", "/stats/fastingAverages/thisTimeRange", 43200},
                    FigureRow{"utcDays", "--time-zone UTC", "/stats/fastingChartState/data/8/value", 1},
                    FigureRow{"utcBars", "--time-zone UTC", "/stats/fastingChartState/data/7/value", 5.0 / 18},
                    FigureRow{"germanLabels", "--locale de", "/stats/fastingChartState/data/8/xAxisLabel", "Sa"},
                    FigureRow{"germanSentence", "--locale de", "/trends/0/averageFastTimeRangeText",
                              "Du fastest diese Woche mehr als letzte Woche."},
                    FigureRow{"hebrewMonths", "--calendar hebrew --range year",
                              "/stats/fastingChartState/data/0/xAxisLabel", "Adar"},
                    FigureRow{"nowEarlier", "--now 2026-02-28T20:00:00+01:00", "/now", "2026-02-28T19:00:00Z"},
                    FigureRow{"nowInTheZone", "--now '2026-02-28 20:00'", "/now", "2026-02-28T19:00:00Z"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(ReportFigures, ofTablesAreThoseOfTheSnapshot) {
  const Workplace place;
  place.write("a.json", threeFasts);
  place.write("f.csv",
              "\xEF\xBB\xBF"
              "Ended;Started\r\n2026-02-21 12:00;2026-02-20 20:00\r\n2026-02-28 14:00;2026-02-27 20:00\r\n"
              "2026-03-01 12:00;2026-02-28 20:00\r\n");
  place.write("w.csv", "date,weight_kg\n2026-03-01T07:00+01:00,81.4\n2026-02-20T07:00+01:00,82\n");
  const Json snapshot = Json::parse(place.run("report --input a.json --format json" + fixedRun).output);
  Json tables = Json::parse(place.run("report --fasts f.csv --weights w.csv --format json" + fixedRun).output);
  for (const char* series : {"weightLogsForWeek", "weightLogsForMonth", "weightLogsForYear"})
    for (Json& weighing : tables["stats"][series])
      for (const Json& same : snapshot["stats"][series])
        if (same["date"] == weighing["date"]) weighing["id"] = same["id"];  // numbered in the order of the file
  EXPECT_EQ(tables, snapshot);
}

TEST(ReportFigures, followTheLawInForce) {
  // Mexico City has had no summer time since 2022: midnight is 06:00 UTC.
  const Json report = reportOf(R"({"version": 1, "fasts": [{"start": "2026-07-01T00:00:00-06:00",
                                   "end": "2026-07-01T12:00:00-06:00"}]})",
                               "--time-zone America/Mexico_City --now 2026-07-01T20:00:00Z");
  EXPECT_EQ(report["stats"]["fastingChartState"]["data"][0]["start"], "2026-07-01T06:00:00Z");
}

TEST(ReportFigures, countTheRunningFastUpToNow) {
  const Json stats =
      reportOf(R"({"version": 1, "fasts": [{"start": "2026-03-01T10:30:00Z", "end": null}]})", "")["stats"];
  EXPECT_EQ(stats["totalFasts"], 1);
  EXPECT_EQ(stats["totalHours"], 1);
  EXPECT_EQ(stats["averageFast"], 5400.0);
}

}  // namespace
}  // namespace mivo::cli
