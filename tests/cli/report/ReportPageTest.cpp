// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sstream>

#include "cli/terminal/TextWidth.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

struct PageRow {
  const char* name;
  std::string history, arguments;
};
void PrintTo(const PageRow& row, std::ostream* out) { *out << row.name; }
class ReportPage : public testing::TestWithParam<PageRow> {};

TEST_P(ReportPage, fits80ColumnsInEveryLanguage) {
  const Workplace place;
  place.write("none.json", R"({"version": 1, "fasts": [], "weights": []})");
  place.write("one.json", R"({"version": 1, "fasts": [{"start": "2026-02-28T20:00:00Z", "end": null}],
                              "weights": [{"date": "2026-03-01T07:00:00Z", "weightInKg": 81.4}]})");
  place.write("longest.json", R"({"version": 1, "fasts": [{"start": "0001-01-02T00:00:00Z",
                                  "end": "9999-12-30T00:00:00Z"}]})");
  for (const char* locale : {"en-GB", "de-DE", "es-ES", "fr-CA", "ja-JP", "he-IL", "ar-EG", "hi-IN-u-nu-deva"}) {
    const Ran ran =
        place.run("report --input " + GetParam().history + fixedRun + GetParam().arguments + " --locale " + locale);
    ASSERT_EQ(ran.status, 0) << ran.errors;
    std::istringstream lines{ran.output};
    for (std::string line; std::getline(lines, line);) {
      EXPECT_LE(columns(line), 80) << locale << ": " << line;
      EXPECT_FALSE(line.ends_with(' ')) << locale << ": " << line;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, ReportPage,
                         testing::Values(PageRow{"none", "none.json", ""}, PageRow{"one", "one.json", "--range month"},
                                         PageRow{"longest", "longest.json", "--range year"},
                                         PageRow{"weeks", sample("three-weeks"), ""},
                                         PageRow{"year", sample("one-year"), "--range month --calendar hebrew"},
                                         PageRow{"decade", sample("ten-years"), "--range year --weight-unit st"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(ReportPage, saysWhatTheScreenSays) {
  const Workplace place;
  place.write("a.json", R"({"version": 1, "fasts": [
    {"start": "2026-02-27T20:00:00+01:00", "end": "2026-02-28T14:00:00+01:00"},
    {"start": "2026-02-28T20:00:00+01:00", "end": "2026-03-01T12:00:00+01:00"}]})");
  const std::string page = place.run("report --input a.json" + fixedRun).output;
  for (const char* line : {
           "  2                        34h                      17h 0m\n",
           "       Fasting                            Eating\n",
           "  Sat  18h 0m  █████████████████████████  6h 0m  ██████████████████████████\n",
           "  ● Catabolic  4–16h · 24h\n",
           "  You're fasting more this week compared to last week.\n",
           "  This week  4h 51m/day  █████████████████████████████████████████████████████\n",
           "  Last week      0m/day\n",
       })
    EXPECT_NE(page.find(line), std::string::npos) << line << "is not in\n" << page;
}

TEST(ReportPage, headsItsTrendsOnce) {
  const Workplace place;
  const std::string page = place.run("report --input " + sample("three-weeks") + fixedRun).output;
  const std::size_t heading = page.find("  Trends\n");
  ASSERT_NE(heading, std::string::npos) << page;
  EXPECT_EQ(page.find("  Trends\n", heading + 1), std::string::npos);
  EXPECT_LT(heading, page.find("●")) << "over the first of them";
}

TEST(ReportPage, plotsTheWeightsFromTheirFirstToTheirLast) {
  const Workplace place;
  place.write("w.json", R"({"version": 1, "fasts": [], "weights": [
    {"date": "2026-02-01T07:00:00Z", "weightInKg": 80}, {"date": "2026-03-01T07:00:00Z", "weightInKg": 78}]})");
  const std::string page = place.run("report --input w.json --range year" + fixedRun).output;
  const std::string plot =
      "  80,0 kg  ⠉⠑⠒⠒⠢⠤⠤⢄⣀⣀⡀\n"
      "                     ⠈⠉⠉⠑⠒⠒⠢⠤⠤⣀⣀⣀\n"
      "                                 ⠉⠉⠉⠒⠒⠒⠤⠤⠤⣀⣀⡀\n"
      "                                            ⠈⠉⠉⠒⠒⠒⠤⠤⠤⣀⣀⣀\n"
      "                                                        ⠉⠉⠉⠒⠒⠢⠤⠤⢄⣀⣀⡀\n"
      "  78,0 kg                                                          ⠈⠉⠉⠑⠒⠒⠢⠤⠤⢄⣀\n"
      "           1 Feb 2026                                               1 Mar 2026\n";
  EXPECT_NE(page.find(plot), std::string::npos) << page;
}

TEST(ReportPage, warnsOfOverlaps) {
  const Workplace place;
  place.write("f.csv", "start,end\n2026-02-27T20:00Z,2026-02-28T14:00Z\n2026-02-28T12:00Z,2026-02-28T20:00Z\n");
  EXPECT_NE(place.run("report --fasts f.csv" + fixedRun).output.find("Overlapping Fasts"), std::string::npos);
}

}  // namespace
}  // namespace mivo::cli
