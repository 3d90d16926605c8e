// SPDX-License-Identifier: MIT
#include "host/pages/HistoryPage.h"

#include <algorithm>
#include <cassert>
#include <string_view>
#include <utility>

#include "host/fasting/OverlappingFasts.h"
#include "mivo/fasting/GoalTime.h"
#include "mivo/pages/DateTimeText.h"

namespace mivo::host {
namespace {

const FastRecord& recordAt(const HistoryFacts& facts, std::size_t row) { return facts.fasts[facts.places[row]]; }

const FastRecord* overlappedBy(const HistoryFacts& facts, std::size_t row) {
  const auto partner = facts.partners[facts.places[row]];
  return partner ? &facts.fasts[*partner] : nullptr;
}

// A fast without a goal has reached it.
double goalFraction(const FinishedFastingDataEntry& fast) {
  const auto goal = static_cast<double>(fast.goalSeconds);
  return goal > 0 ? std::min(1.0, fast.duration() / goal) : 1;
}

std::string firstLine(std::string_view note) {
  constexpr std::string_view blanks = " \t\r\n";
  note.remove_prefix(std::min(note.find_first_not_of(blanks), note.size()));
  note = note.substr(0, note.find_first_of("\r\n"));
  return std::string{note.substr(0, note.find_last_not_of(blanks) + 1)};
}

std::string spokenRow(const HistoryRow& row, const TextLookup& texts) {
  std::string all = row.date + ", " + row.times + ", " + row.length + ", " + row.goal;
  if (row.goalFraction >= 1) all += ", " + texts.text("goal reached");
  if (!row.note.empty()) all += ", " + row.note;
  if (!row.overlap.empty()) all += ", " + row.overlap;
  return all;
}

bool hasMonths(const HistoryFacts& facts, const Calendar& calendar) {
  if (facts.places.empty()) return false;
  const Date latest = recordAt(facts, 0).fast.start, earliest = recordAt(facts, facts.places.size() - 1).fast.start;
  return calendar.startOfMonth(latest) != calendar.startOfMonth(earliest);
}

bool saysOtherwise(const HistoryFacts& before, std::size_t rowBefore, const HistoryFacts& after, std::size_t row) {
  const FastRecord *one = overlappedBy(before, rowBefore), *other = overlappedBy(after, row);
  if ((one == nullptr) != (other == nullptr)) return true;
  if (one && one->fast.start != other->fast.start) return true;
  return recordAt(before, rowBefore) != recordAt(after, row);
}

}  // namespace

HistoryFacts historyFacts(List<FastRecord> fasts, Date now) {
  HistoryFacts facts;
  facts.places.reserve(fasts.size());
  for (std::size_t place = fasts.size(); place-- > 0;) {
    const auto& finished = fasts[place].fast.finished;
    if (!finished) continue;
    facts.places.push_back(place);
    facts.scaleSeconds = std::max(facts.scaleSeconds, finished->duration());
  }
  facts.partners = overlapPartners(fasts, now);
  facts.fasts = std::move(fasts);
  return facts;
}

const FastRecord* recordOf(const HistoryFacts& facts, std::size_t row) {
  return row < facts.places.size() ? &recordAt(facts, row) : nullptr;
}

HistoryRow composeHistoryRow(const HistoryFacts& facts, std::size_t row, const PageClients& clients) {
  assert(row < facts.places.size());
  const auto& texts = clients.texts;
  const FinishedFastingDataEntry& fast = *recordAt(facts, row).fast.finished;
  const std::string goal = goalText(static_cast<double>(fast.goalSeconds), clients.hour, clients.hourMin);
  HistoryRow composed{.date = dayText(fast.start, clients),
                      .times = clockText(fast.start, clients) + " – " + clockText(fast.end, clients),
                      .length = durationText(fast.duration(), clients),
                      .goal = filledIn(texts.text("{1} goal"), {goal}),
                      .seconds = fast.duration(),
                      .goalFraction = goalFraction(fast),
                      .note = firstLine(recordAt(facts, row).note),
                      .overlap = {},
                      .spoken = {}};
  if (const FastRecord* other = overlappedBy(facts, row)) composed.overlap = overlapText(other->fast.start, clients);
  composed.spoken = spokenRow(composed, texts);
  return composed;
}

std::string historySpoken(const HistoryFacts& facts, std::size_t row, const PageClients& clients) {
  const std::string title = clients.texts.text("History");
  return recordOf(facts, row) ? title + ", " + composeHistoryRow(facts, row, clients).spoken : title;
}

HistoryPage composeHistoryPage(const HistoryFacts& facts, const PageClients& clients) {
  const auto& texts = clients.texts;
  return {.title = texts.text("History"),
          .addLabel = texts.text("Add fast"),
          .note = texts.text("The fasts that have ended are listed here. Those of earlier days can be added."),
          .count = static_cast<std::int64_t>(facts.places.size()),
          .scaleSeconds = facts.scaleSeconds,
          .menuTitle = texts.text("Fast"),
          .editLabel = texts.text("Edit fast"),
          .removeLabel = texts.text("Delete fast"),
          .monthsLabel = texts.text("Go to a month"),
          .hasMonths = hasMonths(facts, clients.calendar)};
}

std::vector<HistoryMonth> composeHistoryMonths(const HistoryFacts& facts, const PageClients& clients) {
  std::vector<HistoryMonth> months;
  const std::size_t rows = facts.places.size();
  for (std::size_t row = 0; row < rows;) {
    const Date latest = recordAt(facts, row).fast.start, begin = clients.calendar.startOfMonth(latest).value_or(latest);
    const std::size_t first = row;
    do ++row;
    while (row < rows && recordAt(facts, row).fast.start >= begin);
    const auto count = static_cast<std::int64_t>(row - first);
    months.push_back(
        {.name = clients.dates.string(latest, "yMMMM").value_or(""),
         .fasts = filledIn(clients.texts.plural("{1} fast", "{1} fasts", count), {clients.numbers.string(count)}),
         .row = static_cast<std::int64_t>(first)});
  }
  return months;
}

RowChange rowChange(const HistoryFacts& before, const HistoryFacts& after) {
  if (before.fasts.sharesStorageWith(after.fasts)) return {};
  return rowChange(before.places.size(), after.places.size(),
                   [&](std::size_t one, std::size_t other) { return recordAt(before, one) == recordAt(after, other); });
}

std::vector<std::size_t> rowsThatDiffer(const HistoryFacts& before, const HistoryFacts& after) {
  const auto [first, removed, added] = rowChange(before, after);
  const std::size_t replaced = std::min(removed, added);
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < after.places.size(); ++row) {
    if (row == first + replaced) row = first + added;  // those between have come
    const std::size_t old = row < first + replaced ? row : row - added + removed;
    if (row < after.places.size() && saysOtherwise(before, old, after, row)) rows.push_back(row);
  }
  return rows;
}

}  // namespace mivo::host
