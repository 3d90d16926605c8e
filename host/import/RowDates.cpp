// SPDX-License-Identifier: MIT
#include "host/import/RowDates.h"

#include <algorithm>
#include <array>

namespace mivo::host {
namespace {

using Kind = adapters::WallTimeInstants::Kind;

constexpr bool holdsDates(Role role) {
  switch (role) {
    case Role::length:
    case Role::goal:
    case Role::note:
    case Role::weight:
    case Role::weightUnit:
    case Role::utcOffset:
      return false;
    default:
      return true;
  }
}

/// A date of a file that tells something about its order.
struct Witness {
  std::int64_t line;
  std::string column, text;
  WrittenDate date;
};

std::string dayOf(std::optional<std::chrono::local_days> day) {
  if (!day) return "";
  return rfc3339(Date{day->time_since_epoch()}).substr(0, 10);
}

/// Such a date tells nothing, and is what most files are full of.
bool hasYearFirst(std::string_view cell) {
  return cell.size() > 4 && cell[4] == '-' && cell.find_first_not_of("0123456789") == 4;
}

class Witnesses {
 public:
  void hear(const RecordRows& rows, const RecordRows::Row& row, std::size_t column) {
    const std::string_view cell = row.cells[column];
    if (hasYearFirst(cell)) return;
    const auto date = readWrittenDate(cell);
    if (!date) return;
    std::optional<Witness>& place = date->isOpen() ? open : !date->monthFirst ? dayFirst : monthFirst;
    const bool tells = date->isOpen() || !date->dayFirst || !date->monthFirst;
    if (tells && !place) place = Witness{row.line, rows.nameOf(row, column), std::string{cell}, *date};
  }

  tl::expected<DateOrder, ImportFault> verdict(const std::string& file) const {
    if (dayFirst && monthFirst) {
      const Witness& later = dayFirst->line > monthFirst->line ? *dayFirst : *monthFirst;
      const Witness& earlier = &later == &*dayFirst ? *monthFirst : *dayFirst;
      return asked(file, later,
                   "expected one order of day and month in the whole file, as in line " + std::to_string(earlier.line));
    }
    if (dayFirst) return DateOrder::dayFirst;
    if (monthFirst) return DateOrder::monthFirst;
    if (!open) return DateOrder::dayFirst;  // no date depends on it
    return asked(file, *open,
                 "expected a date that can be read in one way only, not as " + dayOf(open->date.dayFirst) + " or " +
                     dayOf(open->date.monthFirst));
  }

 private:
  static tl::unexpected<ImportFault> asked(const std::string& file, const Witness& witness, std::string reason) {
    return tl::unexpected{ImportFault{{file, witness.line, witness.column, quotable(witness.text), std::move(reason)},
                                      ImportFault::Asks::dateOrder}};
  }

  std::optional<Witness> open, dayFirst, monthFirst;
};

}  // namespace

tl::expected<DateOrder, ImportFault> dateOrderOf(const RecordRows& rows, const std::string& file,
                                                 const ImportSettings& settings) {
  if (settings.dateOrder) return *settings.dateOrder;
  const auto& columns = rows.columns().known;
  Witnesses witnesses;
  rows.forEach([&](const RecordRows::Row& row) {
    for (std::size_t place = 0; place < columns.size(); ++place)
      if (holdsDates(columns[place].role)) witnesses.hear(rows, row, place);
  });
  return witnesses.verdict(file);
}

DateCell readDateCell(std::string_view text) {
  if (auto date = readWrittenDate(text)) return {.date = date, .time = date->time};
  return {.date = {}, .time = readWrittenTime(text)};
}

std::optional<Date> RowDates::instantOf(const WrittenDate& date, bool mayBeDay, ImportNotes& notes) const {
  const auto text = ordered(date, order);
  return text && (text->hasTime || mayBeDay) ? instantOf(*text, notes) : std::nullopt;
}

std::optional<Date> RowDates::instantOf(DateText text, ImportNotes& notes) const {
  if (areUtc && !text.offset) text.offset = std::chrono::seconds{0};
  const auto found = instant(text, zone);
  if (!found || text.offset || !text.hasTime) return found;
  const Kind kind = zone.instants(text.wallTime).kind;
  notes.skippedTimes += kind == Kind::skipped;
  notes.doubledTimes += kind == Kind::repeated;
  return found;
}

bool saysNothing(std::string_view cell) {
  constexpr std::array<std::string_view, 8> nothings{"", "NA", "N/A", "--", "-", "null", "NULL", "none"};
  return std::ranges::find(nothings, cell) != nothings.end();
}

}  // namespace mivo::host
