// SPDX-License-Identifier: MIT
#include "host/import/WeightRows.h"

#include <array>
#include <string>
#include <variant>

#include "host/history/FieldRules.h"
#include "mivo/model/LowerCase.h"
#include "mivo/weights/WeightText.h"

namespace mivo::host {
namespace {

constexpr std::string_view expectedTime = "expected a time of day, as in 20:30 or 8:30 PM";
constexpr std::string_view expectedWholeNumber = "expected a decimal point, or quotes around a number with a comma";

struct Places {
  std::size_t date = 0;
  std::optional<std::size_t> time;
};

/// The column of the day, and the one of the time beside it.
Places placesOf(const ImportColumns& columns) {
  if (const auto place = columns.place(Role::when)) return {*place, {}};
  if (const auto place = columns.place(Role::date)) return {*place, columns.place(Role::time)};
  if (const auto place = columns.place(Role::startDate)) return {*place, columns.place(Role::startTime)};
  for (const Role role : {Role::start, Role::startTime, Role::time})
    if (const auto place = columns.place(role)) return {*place, {}};
  return {};
}

bool isNotWeighed(std::string_view cell) {
  if (saysNothing(cell)) return true;
  const auto read = readWeight(cell, WeightUnit::kilograms);
  const double* const weight = std::get_if<double>(&read);
  return weight && *weight == 0;
}

}  // namespace

WeightRows::WeightRows(const RecordRows& all, const RowDates& rowDates, const ImportSettings& importSettings,
                       const UUIDGenerator& uuids, ImportedFile& into)
    : rows{all}, dates{rowDates}, settings{importSettings}, ids{uuids}, file{into} {
  const auto [date, time] = placesOf(rows.columns());
  datePlace = date;
  timePlace = time;
  unitPlace = rows.columns().place(Role::weightUnit);
}

std::optional<ImportFault> WeightRows::missingUnit() const {
  std::optional<ImportFault> fault;
  rows.forEach([&](const RecordRows::Row& row) {
    if (fault || row.isLone) return;
    const auto place = weightPlace(row);
    if (!place) return;
    const auto read = readWeight(row.cells[*place], unitOf(row, *place));
    const auto* const wrong = std::get_if<WeightTextFault>(&read);
    if (!wrong || *wrong != WeightTextFault::noUnit) return;
    fault = ImportFault{{file.name, row.line, rows.nameOf(row, *place), quotable(row.cells[*place]),
                         "expected a unit in the header or the cell: kg, lb or st"},
                        ImportFault::Asks::weightUnit};
  });
  return fault;
}

/// Either of two units may fill a row.
std::optional<std::size_t> WeightRows::weightPlace(const RecordRows::Row& row) const {
  for (std::size_t place = 0; place < row.cells.size(); ++place)
    if (column(place).role == Role::weight && !isNotWeighed(row.cells[place])) return place;
  return std::nullopt;
}

std::optional<WeightUnit> WeightRows::unitOf(const RecordRows::Row& row, std::size_t place) const {
  if (column(place).unit) return column(place).unit;
  if (unitPlace)
    if (const auto unit = weightUnitNamed(lowerCase(row.cells[*unitPlace]))) return unit;
  return settings.weightUnit;
}

WeightRows::When WeightRows::when(const RecordRows::Row& row) const {
  auto [date, time] = readDateCell(row.cells[datePlace]);
  const bool isBelowItsDay = !date && time && dayAbove;
  if (isBelowItsDay) {
    date = dayAbove;
    date->time = time;
  }
  const std::string_view timeCell = timePlace ? row.cells[*timePlace] : std::string_view{};
  if (!date && dayAbove && saysNothing(row.cells[datePlace]) && !timeCell.empty()) date = dayAbove;
  if (!date) return {{}, datePlace};
  if (date->time || saysNothing(timeCell)) return {date};
  date->time = readWrittenTime(timeCell);
  return date->time ? When{date} : When{{}, *timePlace};
}

void WeightRows::lone(const RecordRows::Row& row) {
  const auto [date, time] = readDateCell(row.cells[0]);
  if (!date || time) {
    file.refused.add({file.name, row.line, "", quotable(row.cells[0]), "expected a date and a weight"});
    return;
  }
  dayWithoutWeight(*date);
}

/// A day alone is that of the times below it, where the table has a column of times only.
void WeightRows::dayWithoutWeight(const WrittenDate& day) {
  dayAbove = day;
  if (column(datePlace).role != Role::time) ++file.notes.notWeighed;
}

void WeightRows::row(const RecordRows::Row& row) {
  if (row.isLone) return lone(row);
  const auto place = weightPlace(row);
  if (!place) {
    const auto [day, time] = readDateCell(row.cells[datePlace]);
    if (day && !time) return dayWithoutWeight(*day);
    ++file.notes.notWeighed;
    return;
  }
  if (row.isSplitNumber) return refuse(row, *place, expectedWholeNumber);
  const auto [date, wrongPlace] = when(row);
  if (!date) return refuse(row, wrongPlace, wrongPlace == datePlace ? expectedDate : expectedTime);
  const auto instant = dates.instantOf(*date, true, file.notes);
  if (!instant) return refuse(row, datePlace, expectedDate);
  const auto read = readWeight(row.cells[*place], unitOf(row, *place));
  const double* const weightInKg = std::get_if<double>(&read);
  if (!weightInKg || !isBodyWeight(*weightInKg)) return refuse(row, *place, expectedWeight);
  file.weights.push_back({ids.next(), *instant, *weightInKg});
}

void WeightRows::refuse(const RecordRows::Row& row, std::size_t place, std::string_view reason) {
  file.refused.add({file.name, row.line, rows.nameOf(row, place), quotable(row.cells[place]), std::string{reason}});
}

}  // namespace mivo::host
