// SPDX-License-Identifier: MIT
#include "host/import/FastRows.h"

#include <chrono>
#include <string>
#include <utility>

#include "host/history/FieldRules.h"
#include "host/import/LengthText.h"

namespace mivo::host {
namespace {

constexpr std::string_view expectedGoal = "expected a goal in hours, as in 16 or 16:30";
constexpr std::string_view expectedLength =
    "expected a length, as in 16:30 or 16h 30m, or a number and its unit in the header";

}  // namespace

FastRows::FastRows(const RecordRows& all, const RowDates& rowDates, const UUIDGenerator& uuids, ImportedFile& into)
    : rows{all}, dates{rowDates}, ids{uuids}, file{into} {
  const auto place = [&](Role role) { return rows.columns().place(role); };
  startPlaces = {place(Role::start), place(Role::startDate), place(Role::startTime)};
  endPlaces = {place(Role::end), place(Role::endDate), place(Role::endTime)};
  datePlace = place(Role::date);
  lengthPlace = place(Role::length);
  goalPlace = place(Role::goal);
  notePlace = place(Role::note);
}

std::string_view FastRows::cell(const RecordRows::Row& row, Place place) const {
  if (!place || saysNothing(row.cells[*place])) return {};
  return row.cells[*place];
}

FastRows::EndCells FastRows::read(const RecordRows::Row& row, const EndPlaces& places) const {
  const auto of = [&](std::size_t place) {
    const auto [date, time] = readDateCell(row.cells[place]);
    return EndCells{.date = date, .time = time, .place = place};
  };
  if (!cell(row, places.whole).empty()) return of(*places.whole);
  const bool hasDate = !cell(row, places.date).empty(), hasTime = !cell(row, places.time).empty();
  if (!hasDate && !hasTime) {
    const Place any = places.whole ? places.whole : places.date ? places.date : places.time;
    return {.place = any.value_or(0), .isEmpty = true};
  }
  if (!hasDate) return of(*places.time);
  EndCells cells = of(*places.date);
  if (!hasTime || !cells.date || cells.date->time) return cells;
  cells.date->time = readDateCell(row.cells[*places.time]).time;
  return cells.date->time ? cells : EndCells{.place = *places.time};
}

std::optional<DateText> FastRows::startOf(const RecordRows::Row& row, const EndCells& cells) const {
  std::optional<WrittenDate> date = cells.date;
  if (!date && cells.time) {
    date = readWrittenDate(cell(row, datePlace));
    if (date) date->time = cells.time;
  }
  const auto text = date ? dates.orderedText(*date) : std::nullopt;
  return text && text->hasTime ? text : std::nullopt;
}

/// A time alone is of the day of the start, or of the next one where it would not lie behind it.
std::optional<DateText> FastRows::endOf(const DateText& start, const EndCells& cells) const {
  if (cells.date) {
    const auto text = dates.orderedText(*cells.date);
    return text && text->hasTime ? text : std::nullopt;
  }
  if (!cells.time) return std::nullopt;
  using std::chrono::days;
  DateText text{.wallTime = std::chrono::floor<days>(start.wallTime) + cells.time->sinceMidnight,
                .fraction = cells.time->fraction,
                .offset = start.offset,
                .hasTime = true};
  if (text.wallTime <= start.wallTime) text.wallTime += days{1};
  return text;
}

void FastRows::row(const RecordRows::Row& row) {
  const EndCells start = read(row, startPlaces);
  const auto startText = startOf(row, start);
  const auto startDate = startText ? dates.instantOf(*startText, file.notes) : std::nullopt;
  if (!startDate) return refuse(row, start.place, expectedDate);
  std::int64_t goalSeconds = defaultGoalSeconds;
  if (const std::string_view text = cell(row, goalPlace); !text.empty()) {
    const auto goal = readGoalText(text, column(*goalPlace).secondsPerUnit.value_or(secondsPerHour));
    if (!goal) return refuse(row, *goalPlace, expectedGoal);
    goalSeconds = *goal;
  }
  const std::string_view note = notePlace ? row.cells[*notePlace] : std::string_view{};
  if (!isNote(note)) return refuse(row, *notePlace, expectedNote);
  ended(row, {ongoingFast(ids.next(), *startDate, goalSeconds), std::string{note}}, *startText);
}

/// The end comes before the length; without either the fast is still running.
void FastRows::ended(const RecordRows::Row& row, FastRecord record, const DateText& start) {
  const EndCells cells = read(row, endPlaces);
  if (!cells.isEmpty) {
    const auto text = endOf(start, cells);
    const auto end = text ? dates.instantOf(*text, file.notes) : std::nullopt;
    if (!end) return refuse(row, cells.place, expectedDate);
    if (*end < record.fast.start) return refuse(row, cells.place, expectedEndAfterStart);
    record = stopped(std::move(record), *end);
  } else if (const std::string_view text = cell(row, lengthPlace); !text.empty()) {
    const auto length = readLengthText(text, column(*lengthPlace).secondsPerUnit);
    const auto end = length ? std::optional{record.fast.start + Duration{*length}} : std::nullopt;
    if (!end || !isRepresentable(*end) || row.isSplitNumber) return refuse(row, *lengthPlace, expectedLength);
    record = stopped(std::move(record), *end);
  }
  file.fasts.push_back(std::move(record));
  file.fastLines.push_back(row.line);
}

void FastRows::refuse(const RecordRows::Row& row, std::size_t place, std::string_view reason) {
  file.refused.add({file.name, row.line, rows.nameOf(row, place), quotable(row.cells[place]), std::string{reason}});
}

}  // namespace mivo::host
