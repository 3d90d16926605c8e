// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;

const std::string berlin = " --time-zone Europe/Berlin --locale en-US ",
                  inKilograms = " --time-zone Europe/Berlin --locale en-DE ";

/// Runs a command that is to succeed, and returns what it says without the line end and the id.
std::string said(const Workplace& place, const std::string& arguments, const std::string& where = berlin) {
  const Ran ran = place.run(arguments + where);
  EXPECT_EQ(ran.status, 0) << arguments << ": " << ran.errors;
  EXPECT_EQ(ran.errors, "") << arguments;
  EXPECT_THAT(ran.output, EndsWith("\n")) << arguments;
  return ran.output.substr(0, ran.output.size() - 1);
}

/// The id in an answer: "Started 3f9a  since ...".
std::string idIn(const std::string& answer) {
  const std::size_t end = answer.find("  "), begin = answer.rfind(' ', end - 1) + 1;
  return answer.substr(begin, end - begin);
}

host::History own(const Workplace& place) { return host::openDatabase(place.file("mivo/mivo.sqlite")).history(); }

double secondsInDay(Date date) { return std::fmod(secondsSince1970(date), secondsPerDay); }

TEST(RecordCommands, takeTimesAsPeopleSayThem) {
  const Workplace place;
  said(place, "add '3 days ago' 0:00", " --time-zone UTC");
  said(place, "start --at -90m");
  const auto fasts = own(place).fasts;
  ASSERT_EQ(fasts.size(), 2u);
  const auto& past = fasts[0].fast.finished.value();
  EXPECT_EQ(secondsInDay(past.end), 0) << "midnight";
  EXPECT_GT(past.duration(), 0);
  EXPECT_LE(past.duration(), secondsPerDay) << "the first one after the start";
  EXPECT_NEAR(secondsBetween(past.start, fasts[1].fast.start), 2.9375 * secondsPerDay, 60);

  said(place, "edit " + text(fasts[0].fast.id) + " --end '11:00 PM'", " --time-zone UTC");
  EXPECT_EQ(secondsInDay(own(place).fasts[0].fast.finished->end), 23 * secondsPerHour);
  EXPECT_THAT(said(place, "add '26.10.2025 02:30+02:00' '2025-10-26 02:30+01:00'", inKilograms),
              MatchesRegex("Added .*02:30 .02:00 to .*02:30 .01:00, 1h 0m.*"));
}

TEST(RecordCommands, takeALengthAgoForATimeWhereverOneIsTyped) {
  const Workplace place;
  said(place, "add -90m -30m");
  said(place, "add --note -5 -5h '-4h 30m' --goal-hours=18");
  const auto fasts = own(place).fasts;
  ASSERT_EQ(fasts.size(), 2u);
  EXPECT_NEAR(fasts[0].fast.finished.value().duration(), 0.5 * secondsPerHour, 1);
  EXPECT_EQ(fasts[0].note, "-5") << "what stands behind an option is its value, to the letter";
  EXPECT_NEAR(fasts[1].fast.finished.value().duration(), secondsPerHour, 1);
  EXPECT_NEAR(secondsBetween(fasts[0].fast.start, fasts[1].fast.start), 3.5 * secondsPerHour, 60);

  said(place, "edit " + text(fasts[1].fast.id) + " --start -2h --end -1h");
  EXPECT_NEAR(secondsBetween(fasts[0].fast.start, own(place).fasts[1].fast.start), 3 * secondsPerHour, 60);
}

TEST(RecordCommands, keepAFastFromItsStartToItsRemoval) {
  const Workplace place;
  const std::string started = said(place, "start --at '2026-02-28 20:04' --goal-hours 18 --note tea");
  EXPECT_THAT(started, MatchesRegex("Started [0-9a-f]{4}  since Feb 28, 2026, 8:04.*PM, goal 18h"));
  const auto running = own(place).fasts;
  ASSERT_EQ(running.size(), 1u);
  EXPECT_EQ(running[0].fast.start, dateSince1970(1772305440));
  EXPECT_EQ(running[0].fast.goalSeconds, 64800);
  EXPECT_EQ(running[0].note, "tea");

  EXPECT_THAT(said(place, "stop --at 2026-03-01T12:46:00+01:00"),
              MatchesRegex("Stopped " + idIn(started) + "  Feb 28, .* to Mar 1, 2026, 12:46.*PM, 16h 42m, goal 18h"));
  EXPECT_THAT(said(place, "edit " + idIn(started) + " --start '2026-02-28 21:00' --goal-hours 16,5 --note ''"),
              EndsWith("15h 46m, goal 16h 30m"));
  const auto edited = own(place).fasts;
  ASSERT_EQ(edited.size(), 1u);
  EXPECT_EQ(edited[0],
            (host::FastRecord{
                finishedFast(running[0].fast.id, dateSince1970(1772308800), dateSince1970(1772365560), 59400), ""}));

  EXPECT_THAT(said(place, "edit " + text(edited[0].fast.id) + " --running"), HasSubstr("since Feb 28"));
  EXPECT_FALSE(own(place).fasts[0].fast.finished);
  EXPECT_THAT(said(place, "remove " + idIn(started)), MatchesRegex("Removed " + idIn(started) + "  since .*"));
  EXPECT_TRUE(own(place).fasts.empty());
}

TEST(RecordCommands, keepNothingOfAStartThatWasAMistake) {
  const Workplace place;
  said(place, "start");
  const auto begun = own(place).fasts;
  EXPECT_EQ(said(place, "stop"), "Not kept: shorter than a minute (mivo undo lets it run on)");
  EXPECT_TRUE(own(place).fasts.empty());
  said(place, "undo");
  EXPECT_EQ(own(place).fasts, begun);
}

TEST(RecordCommands, keepAFastThatWasBegunAtATypedTime) {
  const Workplace place;
  said(place, "start --at \"$(date -u +%Y-%m-%dT%H:%MZ)\"");
  EXPECT_THAT(said(place, "stop"), EndsWith("0m, goal 16h"));
  EXPECT_EQ(own(place).fasts.size(), 1u);
}

TEST(RecordCommands, sayThatFastsOverlap) {
  const Workplace place;
  EXPECT_THAT(said(place, "add '2026-02-27 20:00' '2026-02-28 12:00'"), EndsWith("16h 0m, goal 16h"));
  EXPECT_THAT(said(place, "add '2026-02-28 12:00' '2026-02-28 13:00'"), EndsWith("goal 16h"));
  EXPECT_THAT(said(place, "add '2026-02-28 11:00' '2026-02-28 14:00'"), EndsWith("(overlaps another fast)"));
}

TEST(RecordCommands, followTheSettingsOfTheApp) {
  const Workplace place;
  std::filesystem::create_directories(place.file("mivo"));
  place.write("mivo/app.json", R"({"fastGoalSeconds": 72000, "weightUnit": "st"})");
  EXPECT_THAT(said(place, "start"), EndsWith("goal 20h"));
  EXPECT_THAT(said(place, "weight add 81.4kg"), HasSubstr("12 st 11 lb"));
}

struct WeightRow {
  const char* name;
  std::string typed;
  double weightInKg;
};
void PrintTo(const WeightRow& row, std::ostream* out) { *out << row.name; }
class WeightCommands : public testing::TestWithParam<WeightRow> {};

TEST_P(WeightCommands, keepKilograms) {
  const Workplace place;
  const std::string added = said(place, "weight add " + GetParam().typed + " --at '2026-03-01 07:05'", inKilograms);
  const auto weights = own(place).weights;
  ASSERT_EQ(weights.size(), 1u);
  EXPECT_DOUBLE_EQ(weights[0].weightInKg, GetParam().weightInKg);
  EXPECT_EQ(weights[0].date, dateSince1970(1772345100));
  EXPECT_THAT(said(place, "weight remove " + idIn(added)), testing::StartsWith("Removed " + idIn(added)));
  EXPECT_TRUE(own(place).weights.empty());
}

INSTANTIATE_TEST_SUITE_P(Rows, WeightCommands,
                         testing::Values(WeightRow{"plain", "81.4", 81.4}, WeightRow{"comma", "81,4", 81.4},
                                         WeightRow{"kilograms", "81.4kg", 81.4}, WeightRow{"blank", "'81.4 kg'", 81.4},
                                         WeightRow{"pounds", "179lb", 179 * 0.45359237},
                                         WeightRow{"plural", "'179.5 lbs'", 179.5 * 0.45359237},
                                         WeightRow{"stones", "12.5st", 175 * 0.45359237},
                                         WeightRow{"stonesAndPounds", "'12st 11lb'", 179 * 0.45359237},
                                         WeightRow{"poundsAlone", "'12 st 11'", 179 * 0.45359237}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(RecordCommands, keepAFastOnce) {
  const Workplace place;
  const std::string command = "add '2026-02-27 20:00' '2026-02-28 12:00' --note tea", added = said(place, command);
  EXPECT_EQ(said(place, command), "Saved already: " + added.substr(added.find(' ') + 1));
  EXPECT_EQ(own(place).fasts.size(), 1u);
}

TEST(RecordCommands, askForTheUnitWhereItIsNotPlain) {
  const Workplace place;
  const Ran ran = place.run("weight add 65 --locale en-US");
  EXPECT_EQ(ran.errors, "mivo: WEIGHT: 65 kg or 65 lb? Type its unit too\n");
  EXPECT_EQ(ran.status, 2);
  EXPECT_EQ(place.run("weight add 65,5 --locale en-GB").errors,
            "mivo: WEIGHT: 65,5 kg or 65,5 st? Type its unit too\n");
  EXPECT_FALSE(std::filesystem::exists(place.file("mivo")));
  EXPECT_EQ(place.run("weight add 65 --locale de-DE").status, 0);
  EXPECT_EQ(place.run("weight add 143lb --locale en-US").status, 0);
}

TEST(RecordCommands, keepAWeightOnce) {
  const Workplace place;
  const std::string added = said(place, "weight add 81.4kg --at '2026-03-01 07:05'");
  EXPECT_THAT(said(place, "weight add 81.42kg --at '2026-03-01 07:05'"),
              testing::StartsWith("Saved already: " + idIn(added)));
  EXPECT_EQ(own(place).weights.size(), 1u);
  said(place, "weight add 81.4kg --at '2026-03-01 07:06'");
  EXPECT_EQ(own(place).weights.size(), 2u);
}

TEST(RecordCommands, seeTheDatabaseThatTheyAreToldOf) {
  const Workplace place;
  said(place, "start --at '2026-02-28 20:00' --database other.sqlite");
  EXPECT_EQ(host::openDatabase(place.file("other.sqlite")).history().fasts.size(), 1u);
  EXPECT_EQ(said(place, "list"), "No fasts yet.");
  EXPECT_FALSE(std::filesystem::exists(place.file("mivo/mivo.sqlite"))) << "a list has made a database";
}

TEST(RecordCommands, answerInTheLanguageOfTheUser) {
  const Workplace place;
  const auto answer = place.run("start --at '2026-02-28 20:04' --time-zone Europe/Berlin --locale de-DE").output;
  EXPECT_THAT(answer, MatchesRegex("Begonnen: [0-9a-f]{4}  seit 28. Feb. 2026, 20:04, Ziel 16.*\n"));
}

}  // namespace
}  // namespace mivo::cli
