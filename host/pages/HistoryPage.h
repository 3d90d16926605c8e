// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/history/History.h"
#include "host/pages/RowChange.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"
#include "mivo/store/List.h"

namespace mivo::host {

/// What the history is made of, apart from its texts: changes with the records, and with the time while a fast runs.
struct HistoryFacts {
  List<FastRecord> fasts = {};           ///< by start, the running one too
  std::vector<std::size_t> places = {};  ///< the rows: places of `fasts` that have ended, the latest first
  std::vector<std::optional<std::size_t>> partners = {};  ///< for each of `fasts` the place of one that it overlaps
  double scaleSeconds = secondsPerDay;                    ///< what the strips of all rows span: a day, or the longest
  bool operator==(const HistoryFacts&) const = default;
};

/// `fasts` are by start. O(n).
HistoryFacts historyFacts(List<FastRecord> fasts, Date now);

/// The fast of a row; nothing for a row that is none.
const FastRecord* recordOf(const HistoryFacts& facts, std::size_t row);

/// One fast of the history.
struct HistoryRow {
  std::string date;         ///< "Tue 9 Jun", when it began
  std::string times;        ///< "20:02 – 12:33"
  std::string length;       ///< "16h 31m"
  std::string goal;         ///< "16h goal"
  double seconds = 0;       ///< how long it was
  double goalFraction = 0;  ///< of its goal; 1 where it was reached
  std::string note;         ///< the first line of its note that says something; empty where none does
  std::string overlap;      ///< "Overlaps the fast of Sat 6 Jun"; empty where it overlaps none
  std::string spoken;       ///< all of it
  bool operator==(const HistoryRow&) const = default;
};

template <RecordOf<HistoryRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, times, length, goal, seconds, goalFraction, note, overlap, spoken] = record;
  visit("date", date);
  visit("times", times);
  visit("length", length);
  visit("goal", goal);
  visit("seconds", seconds);
  visit("goalFraction", goalFraction);
  visit("note", note);
  visit("overlap", overlap);
  visit("spoken", spoken);
}

/// The row at a place (asserted to be one). O(1).
HistoryRow composeHistoryRow(const HistoryFacts& facts, std::size_t row, const PageClients& clients);

/// What is spoken of the history while the keyboard is at a row: "History, Tue 9 Jun, ..."; its title alone for a row
/// that is none.
std::string historySpoken(const HistoryFacts& facts, std::size_t row, const PageClients& clients);

/// A month in which fasts of the history began, and the row of the latest one.
struct HistoryMonth {
  std::string name;   ///< "March 2026"
  std::string fasts;  ///< "12 fasts"
  std::int64_t row = 0;
  bool operator==(const HistoryMonth&) const = default;
};

template <RecordOf<HistoryMonth> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [name, fasts, row] = record;
  visit("name", name);
  visit("fasts", fasts);
  visit("row", row);
}

/// The latest first. O(n), with a calendar's answer a month.
std::vector<HistoryMonth> composeHistoryMonths(const HistoryFacts& facts, const PageClients& clients);

/// The history but for its rows, which are composed where they are seen.
struct HistoryPage {
  std::string title;     ///< "History"
  std::string addLabel;  ///< "Add fast"
  std::string note;      ///< what stands in the place of rows where there are none
  std::int64_t count = 0;
  double scaleSeconds = 0;                        ///< of the strips
  std::string menuTitle, editLabel, removeLabel;  ///< of what can be done with a row
  std::string monthsLabel;                        ///< "Go to a month"
  bool hasMonths = false;                         ///< more than one, so that there is somewhere to go
  bool operator==(const HistoryPage&) const = default;
};

template <RecordOf<HistoryPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, addLabel, note, count, scaleSeconds, menuTitle, editLabel, removeLabel, monthsLabel, hasMonths] =
      record;
  visit("title", title);
  visit("addLabel", addLabel);
  visit("note", note);
  visit("count", count);
  visit("scaleSeconds", scaleSeconds);
  visit("menuTitle", menuTitle);
  visit("editLabel", editLabel);
  visit("removeLabel", removeLabel);
  visit("monthsLabel", monthsLabel);
  visit("hasMonths", hasMonths);
}

HistoryPage composeHistoryPage(const HistoryFacts& facts, const PageClients& clients);

/// Where the rows of two histories differ; what the others overlap may have changed. O(n); O(1) for the same list.
RowChange rowChange(const HistoryFacts& before, const HistoryFacts& after);

/// The rows of `after` that were there before, but say something else now. O(n).
std::vector<std::size_t> rowsThatDiffer(const HistoryFacts& before, const HistoryFacts& after);

}  // namespace mivo::host
