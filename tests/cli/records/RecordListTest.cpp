// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sstream>

#include "cli/terminal/TextWidth.h"
#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

Date at(double hours) { return dateSince1970(1772222400 + hours * 3600); }  // from 2026-02-27 20:00 UTC on

host::HistoryChange someRecords() {
  host::HistoryChange change;
  change.addedFasts = {
      {finishedFast({0x1A00000000004000, 1}, at(0), at(16), 57600), "no breakfast"},
      {finishedFast({0x1B00000000004000, 2}, at(15), at(120.75), 64800), "two\nlines"},
      {ongoingFast({0x1C00000000004000, 3}, at(240), 59400), "今日は朝ごはんを食べなかったので、少しお腹が空いた"}};
  change.addedWeights = {{{0x2A00000000004000, 4}, at(0), 81.4}, {{0x2B00000000004000, 5}, at(24), 101.25}};
  return change;
}

Ran list(const std::string& arguments, const host::HistoryChange& records = someRecords()) {
  const Workplace place;
  host::openDatabase(place.file("d")).apply(records);
  return place.run(arguments + " --database d");
}

TEST(RecordList, standsInColumns) {
  auto records = someRecords();
  records.addedFasts.pop_back();  // its length is another every minute
  EXPECT_EQ(list("list --locale en-DE --time-zone Europe/Berlin", records).output,
            "ID                Start                End    Length  Goal  Note\n"
            "1a00  27/02/2026, 21:00  28/02/2026, 13:00    16h 0m   16h  ! no breakfast\n"
            "1b00  28/02/2026, 12:00  04/03/2026, 21:45  105h 45m   18h  ! two lines\n"
            "\n! overlaps another fast\n");
  EXPECT_EQ(list("weight list --locale en-DE --time-zone Europe/Berlin").output,
            "ID                 Date    Weight\n"
            "2a00  27/02/2026, 21:00   81,4 kg\n"
            "2b00  28/02/2026, 21:00  101,3 kg\n");
}

const std::string longNote = "no breakfast, a long walk, and soup";

Ran listOnTerminal(const std::string& arguments, int width) {
  auto records = someRecords();
  records.addedFasts[0].note = longNote;
  const Workplace place;
  host::openDatabase(place.file("d")).apply(records);
  return place.runOnTerminal(arguments + " --time-zone Europe/Berlin --database d", width);
}

TEST(RecordList, fitsTheTerminalInEveryLanguage) {
  for (const int width : {40, 80, 200})
    for (const char* locale : {"en-US", "de-DE", "es-ES", "fr-CA", "ja-JP", "he-IL", "ar-EG", "hi-IN-u-nu-deva"})
      for (const char* what : {"list", "weight list"}) {
        const Ran ran = listOnTerminal(std::string{what} + " --locale " + locale, width);
        ASSERT_EQ(ran.status, 0) << ran.errors;
        std::istringstream lines{ran.output};
        for (std::string line; std::getline(lines, line);) {
          EXPECT_LE(columns(line), width) << locale << ": " << line;
          EXPECT_FALSE(line.ends_with(' ')) << locale << ": " << line;
        }
      }
}

TEST(RecordList, cutsNotesOnATerminalAlone) {
  auto records = someRecords();
  records.addedFasts[0].note = longNote;
  EXPECT_NE(list("list", records).output.find(longNote), std::string::npos);
  EXPECT_NE(listOnTerminal("list", 200).output.find(longNote), std::string::npos);
  const std::string cut = listOnTerminal("list", 80).output;
  EXPECT_EQ(cut.find(longNote), std::string::npos);
  EXPECT_NE(cut.find("…\n"), std::string::npos);
}

TEST(RecordList, hasABlockAFastOnANarrowTerminal) {
  const std::string shown = listOnTerminal("list --locale en-DE", 40).output;
  EXPECT_EQ(shown.substr(0, shown.find("1b00")),
            "1a00\n"
            "  Start   27/02/2026, 21:00\n"
            "  End     28/02/2026, 13:00\n"
            "  Length  16h 0m\n"
            "  Goal    16h\n"
            "  Note    ! no breakfast, a long walk,…\n");
}

TEST(RecordList, isATableAsLongAsItsHeadingsFit) {
  const auto headings = [](int width) {
    const std::string shown = listOnTerminal("list --locale en-DE", width).output;
    return shown.substr(0, shown.find('\n'));
  };
  const std::string wide = headings(200);
  EXPECT_EQ(headings(columns(wide)), wide);
  EXPECT_EQ(headings(columns(wide) - 1), "1a00");
}

TEST(RecordList, isASnapshotOfItsOwnListInJson) {
  EXPECT_EQ(list("list --format json").output,
            R"({
  "version": 1,
  "fasts": [
    {"id": "1A000000-0000-4000-0000-000000000001", "start": "2026-02-27T20:00:00Z", "end": "2026-02-28T12:00:00Z", "goalSeconds": 57600, "note": "no breakfast"},
    {"id": "1B000000-0000-4000-0000-000000000002", "start": "2026-02-28T11:00:00Z", "end": "2026-03-04T20:45:00Z", "goalSeconds": 64800, "note": "two\u000alines"},
    {"id": "1C000000-0000-4000-0000-000000000003", "start": "2026-03-09T20:00:00Z", "end": null, "goalSeconds": 59400, "note": "今日は朝ごはんを食べなかったので、少しお腹が空いた"}
  ]
}
)");
  EXPECT_EQ(list("weight list --format json").output,
            R"({
  "version": 1,
  "weights": [
    {"id": "2A000000-0000-4000-0000-000000000004", "date": "2026-02-27T20:00:00Z", "weightInKg": 81.4},
    {"id": "2B000000-0000-4000-0000-000000000005", "date": "2026-02-28T20:00:00Z", "weightInKg": 101.25}
  ]
}
)");
}

}  // namespace
}  // namespace mivo::cli
